#include "vkd_lib_text.h"
#include "vkd_lib_searchpath.h"

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QList>
#include <QLoggingCategory>
#include <QPair>

#include <map>

namespace {
Q_LOGGING_CATEGORY(lcText, "vkd.text")

struct BothLanguages
{
    QByteArray german;
    QByteArray english;
};

/// The messages of one program, keyed by class and key.
using Texts = QHash<QPair<int, QByteArray>, BothLanguages>;

Texts readTexts(const QString& path)
{
    Texts texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qCWarning(lcText, "cannot read the texts %s: %s", qUtf8Printable(path),
                  qUtf8Printable(file.errorString()));
    for (int number = 1; file.isReadable() && !file.atEnd(); ++number) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1); // only the newline: spaces can be part of a message
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        const QList<QByteArray> parts = line.split('|');
        bool hasClass = false;
        const int textClass = parts[0].toInt(&hasClass);
        if (parts.size() != 4 || !hasClass) {
            qCWarning(lcText, "%s:%d: a text needs class, key, German and English",
                      qUtf8Printable(path), number);
            continue;
        }
        // Keys come from captions and are compared as Latin-1.
        const auto key = qMakePair(textClass, QString::fromUtf8(parts[1]).toLatin1());
        if (!texts.contains(key))
            texts.insert(key, {parts[2], parts[3]});
    }
    return texts;
}

const Texts* selected = nullptr;
} // namespace

void vkd_lib_opentext(const char* program)
{
    static std::map<QString, Texts> read; // elements of a std::map have stable addresses
    const std::string name = std::string("texts/") + program + ".txt";
    const auto path = vkd_lib_searchpath(name.c_str(), 3);
    if (!path)
        qCWarning(lcText, "no texts for the program %s: %s is not on the search path", program,
                  name.c_str());
    const QString where = path ? QFile::decodeName(path->c_str()) : QString();
    auto found = read.find(where);
    if (found == read.end())
        found = read.emplace(where, where.isNull() ? Texts() : readTexts(where)).first;
    selected = &found->second;
}

std::string vkd_lib_convtext(int textClass, int language, const char* key)
{
    if (!selected || language < 0 || language > 1)
        return std::string();
    const auto found = selected->constFind(qMakePair(textClass, QByteArray(key)));
    if (found == selected->constEnd())
        return std::string();
    return (language == 0 ? found->german : found->english).toStdString();
}
