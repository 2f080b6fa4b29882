#include "CatalogueTestSupport.h"

#include "TestSupport.h"

#include <catalogue/CatalogueParser.h>
#include <tree/TreeBuilder.h>

#include <QBuffer>

namespace testsupport {

Texts::Texts(const QByteArray& file)
{
    QDir(m_folder.path()).mkdir(QStringLiteral("texts"));
    writeFile(path("texts/grav.txt"), file);
    qputenv("VKD_SHARE", m_folder.path().toLocal8Bit());
}

QString Texts::path(const char* name) const
{
    return m_folder.filePath(QString::fromLatin1(name));
}

Records parse(const QByteArray& catalogue)
{
    QByteArray bytes = catalogue;
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    Records records;
    plib::parseCatalogue(device, records);
    return records;
}

QByteArray line(const char* titles, const char* caseWord, int preselect, int viewKind,
                const char* german, const char* english)
{
    return QByteArray("1|0|0|") + titles + "| |0|" + caseWord + '|' +
           QByteArray::number(preselect) + '|' + QByteArray::number(viewKind) + "| |0|" + german +
           '|' + english + '\n';
}

void build(plib::OutputNode* root, const Records& records, const Rows& rows)
{
    plib::OutputNodeOperations operations(root);
    plib::TreeBuilder<plib::OutputNode, plib::OutputNodeOperations> builder(root, rows, operations);
    for (const plib::GraphicalOutputRecord& record : records)
        builder.add(record);
    builder.finish();
}

Rows rows(int count)
{
    Rows result;
    for (int i = 1; i <= count; ++i)
        result.push_back({1, i, QStringLiteral("%1 : %2").arg(i).arg(QChar('a' + i - 1))});
    return result;
}

int below(std::mt19937& random, int end)
{
    return int(random() % unsigned(end));
}

} // namespace testsupport
