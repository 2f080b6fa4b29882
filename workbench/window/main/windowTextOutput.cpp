// The main window and the dialog of the text output.

#include "window/main/MainWindow.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDialog.h"
#include "window/textoutput/TextOutputDialog.h"

namespace workbench {

void MainWindow::showTextOutput()
{
    if (!m_textOutput && !canRead())
        return;
    if (!m_textOutput) {
        m_seenTextOutput.look(index());
        makeTextOutput();
    }
    m_textOutput->show();
    m_textOutput->raise();
    m_textOutput->activateWindow();
}

void MainWindow::makeTextOutput()
{
    m_textOutput = std::make_unique<TextOutputDialog>(index(), this);
    m_textOutput->addActions(m_actions->besideDialogs());
    connect(m_textOutput.get(), &TextOutputDialog::choiceChanged, this, &MainWindow::showModified);
    connect(m_textOutput.get(), &QDialog::accepted, this, [this] {
        if (storeTextOutput())
            closeTextOutput();
        else
            showTextOutput(); // what was chosen is not lost
    });
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
    const TextOutputState state = m_textOutput->state();
    const auto store = [this, &state](SeenPart::Newer newer) {
        return m_seenTextOutput.store(
            index(), [this, &state] { return state.put(index()); }, newer);
    };
    const Stored stored = storePart(store, tr("The text output cannot be stored in the file %1."));
    if (stored == Stored::Reload)
        reloadTextOutput();
    if (stored != Stored::Yes)
        return false;
    m_textOutput->setUnchanged();
    showModified();
    say(tr("The text output is in the project file."));
    return true;
}

void MainWindow::reloadTextOutput()
{
    if (!canRead())
        return;
    m_seenTextOutput.look(index());
    m_textOutput->setState(TextOutputState::read(index(), ExtentFields::DefaultLists));
    m_textOutput->setUnchanged();
    showModified();
}

bool MainWindow::mayLeaveTextOutput()
{
    return !m_textOutput || !m_textOutput->isChanged() ||
           mayLeave(
               tr("The text output is changed and not yet in the project.\nIs it to be stored?"),
               [this] { return storeTextOutput(); });
}

void MainWindow::showModified()
{
    setWindowModified((m_output && m_output->isChanged()) ||
                      (m_textOutput && m_textOutput->isChanged()));
}

void MainWindow::reopenTextOutput(const TextOutputState& state)
{
    makeTextOutput();
    m_textOutput->setState(state);
    m_textOutput->show();
}

/// It takes its texts when it is made.
void MainWindow::remakeTextOutput()
{
    if (!m_textOutput)
        return;
    const TextOutputState before = m_textOutput->state();
    m_textOutput.reset(); // which keeps its place
    reopenTextOutput(before);
}

} // namespace workbench
