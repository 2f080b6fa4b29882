#pragma once

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

    /// Returns the saved value of setting 102, the language; `otherwise` if none was saved.
    int language(int otherwise) const;
    void setLanguage(int language);
    bool englishKeywords() const;
    void setEnglishKeywords(bool english);
};

} // namespace workbench
