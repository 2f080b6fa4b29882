#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace workbench {

/// Saves screenshots of widgets as files in a folder. The file names contain the language of the
/// desktop. Throws std::runtime_error if a file cannot be written.
class SnapshotAlbum
{
public:
    /// Creates the folder if it is missing.
    explicit SnapshotAlbum(const QString& folder);

    /// Sets the suffix for the names of screenshots that are added after this call.
    void setLook(const QString& look) { m_look = look; }

    /// Processes pending events, and saves a screenshot of the widget and of its drop-down list if
    /// this list is open.
    void add(const QString& name, QWidget* widget);
    /// Saves a screenshot of the modal dialog that `open` opens, in the size that the contents of
    /// the dialog need, even if the screen is smaller. Afterwards, calls `work` with the dialog and
    /// cancels the dialog.
    void addModal(const QString& name, const std::function<void()>& open,
                  const std::function<void(QWidget*)>& work = {});

    /// Records that this screenshot cannot be taken with the project.
    void leaveOut(const QString& name) { m_leftOut << name + m_look; }

    const QStringList& files() const { return m_files; }
    const QStringList& leftOut() const { return m_leftOut; }

private:
    QString m_folder;
    QString m_look;
    QStringList m_files;
    QStringList m_leftOut;
};

} // namespace workbench
