#include "CatalogueTestSupport.h"

#include "TestSupport.h"

#include <CatalogueParser.h>
#include <selectionText.h>
#include <TreeBuilder.h>

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

void applyStepByStep(plib::OutputNode* root, const QString& text)
{
    for (int i = 0; i < root->childCount(); ++i)
        plib::setBranchState(root->child(i), Qt::Unchecked);
    const plib::ItemIndex<plib::OutputNode> index(root);
    bool isEmpty = false;
    for (const plib::SelectionLine& line : plib::parseSelection(text, &isEmpty)) {
        plib::OutputNode* item = index.findItem(line.id);
        if (!item)
            continue;
        plib::setBranchState(item,
                             line.kind == plib::SelectionLine::Check ? Qt::Checked : Qt::Unchecked);
        for (int number : line.numbers)
            for (int i = item->childCount() - 1; i >= 0; --i)
                if (item->child(i)->number == number) {
                    plib::setBranchState(item->child(i), Qt::Checked);
                    break;
                }
    }
}

namespace {
void append(const plib::OutputNode* parent, int depth, QString* text)
{
    const char* const marks[] = {"[ ] ", "[-] ", "[x] "}; // in the order of Qt::CheckState
    for (int i = 0; i < parent->childCount(); ++i) {
        const plib::OutputNode* node = parent->child(i);
        *text += QString(2 * depth, QLatin1Char(' ')) + QLatin1String(marks[node->checkState(0)]) +
                 node->text(0) + QLatin1Char('\n');
        append(node, depth + 1, text);
    }
}
} // namespace

QString treeText(const plib::OutputNode* root)
{
    QString text;
    append(root, 0, &text);
    return text;
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
