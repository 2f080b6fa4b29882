#pragma once

#include <vkd_language.h>

#include <QSettings>
#include <QStringList>

namespace workbench {

/// The settings of the window that are saved between two starts, in a file of this program.
class WindowSettings : public QSettings
{
    Q_OBJECT

public:
    WindowSettings();

    /// Returns the projects that were opened last, the latest first, at most eight. A file occurs
    /// once, even if it was opened by different paths. Missing files are left out.
    QStringList recentFiles() const;
    void addRecentFile(const QString& path);

    /// Returns the saved language of the window; `otherwise` if none was saved.
    vkd::Language language(vkd::Language otherwise) const;
    void setLanguage(vkd::Language language);
    /// Returns the saved language of a script's keywords.
    vkd::Language keywords() const;
    void setKeywords(vkd::Language language);
};

} // namespace workbench
