#include "HelpBook.h"

#include <vkd_lib_searchpath.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {
using vkd::Language;

const QString IndexFile = QStringLiteral("index.txt");

/// Returns whether the text is a name that is safe as part of a path.
bool isName(const QString& text)
{
    static const QRegularExpression name(QStringLiteral("\\A[A-Za-z0-9_]+\\z"));
    return name.match(text).hasMatch();
}

QString languageFolder(Language language)
{
    return language == Language::German ? QStringLiteral("de") : QStringLiteral("en");
}

QString pageFile(const QString& topic)
{
    return topic.toLower() + QLatin1String(".html");
}

/// Returns the folder of a book for a language, or an empty string if there is none.
QString folderOf(const QString& book, Language language)
{
    const QString index =
        QStringLiteral("help/%1/%2/%3").arg(book, languageFolder(language), IndexFile);
    constexpr int AnyMode = 3;
    const auto path = vkd_lib_searchpath(QFile::encodeName(index).constData(), AnyMode);
    return path ? QFileInfo(QFile::decodeName(path->c_str())).path() : QString();
}
} // namespace

HelpBook::HelpBook(const QString& name, Language language)
    : m_name(name.toLower())
{
    if (!isName(name))
        return;
    const Language other = language == Language::German ? Language::English : Language::German;
    for (Language wanted : {language, other}) {
        m_folder = folderOf(m_name, wanted);
        if (!m_folder.isEmpty())
            readIndex();
        if (!m_topics.isEmpty())
            return;
    }
}

int HelpBook::find(const QString& name) const
{
    for (int i = 0; i < m_topics.size(); ++i)
        if (m_topics[i].name.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

int HelpBook::find(const QUrl& addressOfPage) const
{
    const QUrl page = addressOfPage.adjusted(QUrl::RemoveFragment);
    for (int i = 0; i < m_topics.size(); ++i)
        if (address(i) == page)
            return i;
    return -1;
}

QUrl HelpBook::address(int topic) const
{
    return QUrl(QStringLiteral("help:/%1/%2").arg(m_name, pageFile(m_topics[topic].name)));
}

QString HelpBook::page(int topic) const
{
    return QString::fromUtf8(file(address(topic)));
}

QByteArray HelpBook::file(const QUrl& addressOfFile) const
{
    return read(addressOfFile.fileName());
}

void HelpBook::readIndex()
{
    const QStringList lines = QString::fromUtf8(read(IndexFile)).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int bar = line.indexOf(QLatin1Char('|'));
        const QString name = line.left(bar).trimmed();
        if (bar > 0 && isName(name) && !read(pageFile(name)).isEmpty())
            m_topics.append({name, line.mid(bar + 1).trimmed()});
    }
}

QByteArray HelpBook::read(const QString& fileName) const
{
    for (const char* place : {".", ".."}) {
        QFile file(QDir(m_folder).filePath(QLatin1String(place) + QLatin1Char('/') + fileName));
        if (file.open(QIODevice::ReadOnly))
            return file.readAll();
    }
    return QByteArray();
}
