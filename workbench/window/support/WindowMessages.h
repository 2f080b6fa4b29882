#pragma once

#include <vkd_zob.h>

#include <QCoreApplication>

#include <functional>

class QMainWindow;

namespace workbench {

/// Shows messages to the user in the status bar of the main window. Errors and questions are also
/// shown in a message box.
class WindowMessages
{
    Q_DECLARE_TR_FUNCTIONS(workbench::WindowMessages)

public:
    /// The window is not owned.
    explicit WindowMessages(QMainWindow* window);

    QMainWindow* window() const { return m_window; }
    /// Replaces the text in the status bar.
    void say(const QString& text);
    /// Shows an error message; the status bar shows its first line.
    void complain(const QString& text);
    void complainOfWriting(const QString& path, const QString& reason);
    /// If `status` is an error, shows `sentence` with the path inserted and the reason for the
    /// error. If the user has cancelled, only the status bar shows the message. Returns whether
    /// `status` is VKD_ZOB_OK.
    bool succeeds(cd_error_t status, const QString& path, const QString& sentence);
    /// Overload for a complete status. If a system error occurred while reading or writing, shows
    /// the reason from the status.
    bool succeeds(const VkdStatus& status, const QString& path, const QString& sentence);
    /// Asks whether to store changes, and calls `store` if the user confirms. Returns false if the
    /// user cancels or `store` returns false.
    bool mayLeave(const QString& question, const std::function<bool()>& store);

private:
    QMainWindow* m_window;
};

} // namespace workbench
