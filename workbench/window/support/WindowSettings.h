#pragma once

#include <QSettings>
#include <QStringList>

namespace workbench {

/// What the window keeps between two starts, in a file of the program's own.
class WindowSettings : public QSettings
{
    Q_OBJECT

public:
    WindowSettings();

    /// The projects opened last, the last one first, eight at most and each file once, by whatever
    /// path. Files that are gone are left out.
    QStringList recentFiles() const;
    void addRecentFile(const QString& path);

    /// The language of the desktop, as setting 102 has it; `otherwise` until one was chosen.
    int language(int otherwise) const;
    void setLanguage(int language);
    bool englishKeywords() const;
    void setEnglishKeywords(bool english);
};

} // namespace workbench
