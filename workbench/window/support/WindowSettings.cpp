#include "window/support/WindowSettings.h"

#include <vkd_qt_qt6.h>

#include <QDir>
#include <QFileInfo>

namespace workbench {

namespace {
using vkd::Language;

constexpr int MaximumCount = 8;
const QString RecentKey = QStringLiteral("recentFiles");
const QString LanguageKey = QStringLiteral("language");
const QString KeywordsKey = QStringLiteral("englishKeywords");
} // namespace

WindowSettings::WindowSettings()
    : QSettings(IniFormat, UserScope, QStringLiteral("plib"), QStringLiteral("workbench"))
{
    vkd_qt_useUtf8(*this);
}

QStringList WindowSettings::recentFiles() const
{
    QStringList present;
    const QStringList saved = savedRecentFiles();
    for (const QString& path : saved)
        if (QFileInfo(path).isFile())
            present << path;
    return present;
}

QStringList WindowSettings::savedRecentFiles() const
{
    return value(RecentKey).toStringList().mid(0, MaximumCount);
}

void WindowSettings::addRecentFile(const QString& path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    QStringList files{QDir::cleanPath(QFileInfo(path).absoluteFilePath())};
    const QStringList before = savedRecentFiles();
    for (const QString& file : before)
        if (file != files.first() && QFileInfo(file).canonicalFilePath() != canonical)
            files << file;
    if (files == before)
        return; // avoids writing to the disk
    setValue(RecentKey, QStringList(files.mid(0, MaximumCount)));
}

void WindowSettings::removeRecentFile(const QString& path)
{
    QStringList files = savedRecentFiles();
    files.removeAll(path);
    setValue(RecentKey, files);
}

Language WindowSettings::language(Language otherwise) const
{
    return value(LanguageKey, int(otherwise)).toInt() == 0 ? Language::German : Language::English;
}

void WindowSettings::setLanguage(Language language)
{
    setValue(LanguageKey, int(language));
}

Language WindowSettings::keywords() const
{
    return value(KeywordsKey, true).toBool() ? Language::English : Language::German;
}

void WindowSettings::setKeywords(Language language)
{
    setValue(KeywordsKey, language == Language::English);
}

} // namespace workbench
