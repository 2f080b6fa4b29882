// The main window and the dialog of the text output.

#include "ExtentFields.h"
#include "MainWindow.h"
#include "OutputDialog.h"
#include "PlatformLog.h"
#include "TextOutputDialog.h"

#include <VKD_QT_MessageBox.h>

namespace workbench {

void MainWindow::showTextOutput()
{
    if (!m_textOutput)
        makeTextOutput();
    m_textOutput->show();
    m_textOutput->raise();
    m_textOutput->activateWindow();
}

void MainWindow::makeTextOutput()
{
    m_textOutput = std::make_unique<TextOutputDialog>(index(), this);
    connect(m_textOutput.get(), &TextOutputDialog::choiceChanged, this, &MainWindow::showModified);
    connect(m_textOutput.get(), &QDialog::accepted, this, &MainWindow::storeTextOutput);
    connect(m_textOutput.get(), &QDialog::rejected, this, [this] {
        closeTextOutput();
        say(tr("The text output stays as it was."));
    });
}

/// It may be busy with closing itself.
void MainWindow::closeTextOutput()
{
    if (m_textOutput)
        m_textOutput.release()->deleteLater();
    showModified();
}

bool MainWindow::storeTextOutput()
{
    PlatformLog::take();
    const bool isStored = m_textOutput->state().write(index());
    const QStringList troubles = PlatformLog::take();
    if (!isStored || !troubles.isEmpty()) {
        complain(tr("The text output cannot be stored in the project.\n%1").arg(troubles.value(0)));
        return false;
    }
    closeTextOutput();
    say(tr("The text output is in the project file."));
    return true;
}

bool MainWindow::mayLeaveTextOutput()
{
    if (!m_textOutput || !m_textOutput->isChanged())
        return true;
    const int answer = VKD_QT_MessageBox::warning(
        this, tr("Workbench"),
        tr("The text output is changed and not yet in the project.\nIs it to be stored?"),
        QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return storeTextOutput();
    return answer == QMessageBox::Discard;
}

void MainWindow::showModified()
{
    setWindowModified((m_output && m_output->isChanged()) ||
                      (m_textOutput && m_textOutput->isChanged()));
}

/// It takes its texts when it is made.
void MainWindow::remakeTextOutput()
{
    if (!m_textOutput)
        return;
    const bool wasOpen = m_textOutput->isVisible();
    const QPoint place = m_textOutput->pos();
    const TextOutputState state = m_textOutput->state();
    makeTextOutput();
    m_textOutput->setState(state);
    if (!wasOpen)
        return;
    m_textOutput->move(place);
    m_textOutput->show();
}

} // namespace workbench
