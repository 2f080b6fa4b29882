#pragma once

#include <vkd_zob.h>

#include <QCoreApplication>

#include <functional>

class QMainWindow;

namespace workbench {

/// Shows messages to the user in the status bar of the main window, and failures and questions in a
/// message box as well.
class WindowMessages
{
    Q_DECLARE_TR_FUNCTIONS(workbench::WindowMessages)

public:
    /// The window is not owned.
    explicit WindowMessages(QMainWindow* window);

    QMainWindow* window() const { return m_window; }
    /// Replaces the text in the status bar.
    void say(const QString& text);
    /// Shows a failure; the status bar shows its first line.
    void complain(const QString& text);
    void complainOfWriting(const QString& path, const QString& reason);
    /// Shows a failure with the path inserted into `sentence`, and its reason. If the user has
    /// cancelled, only the status bar shows it. Returns whether `status` is VKD_ZOB_OK.
    bool succeeds(cd_error_t status, const QString& path, const QString& sentence);
    /// The same; if the system failed to read or write, the reason is that of the status.
    bool succeeds(const VkdStatus& status, const QString& path, const QString& sentence);
    /// Asks whether to store changes and calls `store` if the user wants to. Returns false if the
    /// user cancels or `store` returns false.
    bool mayLeave(const QString& question, const std::function<bool()>& store);

private:
    QMainWindow* m_window;
};

} // namespace workbench
