#pragma once

#include <vkd_language.h>

#include <QSettings>
#include <QStringList>

namespace workbench {

/// The window settings that are preserved between sessions, in a settings file of this program.
class WindowSettings : public QSettings
{
    Q_OBJECT

public:
    WindowSettings();

    /// Returns up to eight of the most recently opened projects, the latest first. A file occurs
    /// only once, even if it was opened through different paths. Missing files are omitted.
    QStringList recentFiles() const;
    /// Returns the same list, including missing files.
    QStringList savedRecentFiles() const;
    void addRecentFile(const QString& path);
    void removeRecentFile(const QString& path);

    /// Returns the saved language of the window, or `otherwise` if no language was saved.
    vkd::Language language(vkd::Language otherwise) const;
    void setLanguage(vkd::Language language);
    /// Returns the saved language of a script's keywords.
    vkd::Language keywords() const;
    void setKeywords(vkd::Language language);
};

} // namespace workbench
