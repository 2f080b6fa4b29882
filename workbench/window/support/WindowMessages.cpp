#include "window/support/WindowMessages.h"

#include "window/files/storeErrorText.h"

#include <VKD_QT_MessageBox.h>

#include <QDir>
#include <QMainWindow>
#include <QStatusBar>

namespace workbench {

WindowMessages::WindowMessages(QMainWindow* window)
    : m_window(window)
{
}

void WindowMessages::say(const QString& text)
{
    m_window->statusBar()->showMessage(text);
}

void WindowMessages::complain(const QString& text)
{
    say(text.section(QLatin1Char('\n'), 0, 0));
    VKD_QT_MessageBox::warning(m_window, tr("Workbench"), text);
}

void WindowMessages::complainOfWriting(const QString& path, const QString& reason)
{
    const QString sentence = tr("The file %1 cannot be written.");
    complain(sentence.arg(QDir::toNativeSeparators(path)) + QLatin1Char('\n') + reason);
}

bool WindowMessages::succeeds(cd_error_t status, const QString& path, const QString& sentence)
{
    return succeeds(VkdStatus{status, QString()}, path, sentence);
}

bool WindowMessages::succeeds(const VkdStatus& status, const QString& path, const QString& sentence)
{
    const bool hasOwnReason = status.code == VKD_ZOB_FAILED && !status.reason.isEmpty();
    if (status.code == VKD_ZOB_CANCELLED)
        say(tr("Cancelled."));
    else if (!status.isOk())
        complain(sentence.arg(QDir::toNativeSeparators(path)) + QLatin1Char('\n') +
                 (hasOwnReason ? status.reason : storeErrorText(path, status.code)));
    return status.isOk();
}

bool WindowMessages::mayLeave(const QString& question, const std::function<bool()>& store)
{
    const int answer =
        VKD_QT_MessageBox::warning(m_window, tr("Workbench"), question, QMessageBox::Save,
                                   QMessageBox::Discard, QMessageBox::Cancel);
    return answer == QMessageBox::Save ? store() : answer == QMessageBox::Discard;
}

} // namespace workbench
