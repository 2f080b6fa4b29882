// The main window and the dialogs of the pages: design parameters with picking, graphical output
// with its script.

#include "project/ProjectWatch.h"
#include "window/design/DesignDialog.h"
#include "window/design/PickBanner.h"
#include "window/main/GroupList.h"
#include "window/main/MainWindow.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDialog.h"
#include "window/output/ScriptPane.h"
#include "window/support/chooseFileToSave.h"
#include "window/support/projectTrouble.h"
#include "window/support/SlowWork.h"
#include "window/support/WindowSettings.h"
#include "window/support/withinScreen.h"
#include "window/textoutput/TextOutputDialog.h"

#include <AnimatorView.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_T_Help.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDockWidget>
#include <QMessageBox>
#include <QSaveFile>
#include <QStatusBar>

#include <algorithm>
#include <optional>

namespace workbench {

void MainWindow::editDesign()
{
    auto dialog = std::make_unique<DesignDialog>(m_document.get(), this);
    if (!withProject([&dialog] { return dialog->load(); }, tr("The file %1 cannot be read.")))
        return;
    m_design = std::move(dialog);
    m_design->showPage();
    runDesign();
}

void MainWindow::runDesign()
{
    int result = m_design->exec();
    while (result == QDialog::Accepted && !storeDesign()) {
        m_design->showPage(); // what was entered is not lost
        result = m_design->exec();
    }
    if (result == VKD_H_SelGRP_Dialog::PickOutside)
        return startPicking();
    m_design.reset();
    if (result == QDialog::Accepted)
        showRecords();
    else
        say(tr("The design parameters stay as they were."));
}

/// False: the dialog is to be shown again.
bool MainWindow::storeDesign()
{
    m_watch->look();
    if (m_watch->file() != ProjectWatch::File::Present)
        return storeDesignElsewhere();
    const Stored stored =
        storePart([this](SeenPart::Newer newer) { return m_design->store(newer); },
                  tr("The design parameters cannot be stored in the file %1."));
    if (stored == Stored::Reload)
        withProject([this] { return m_design->load(); }, tr("The file %1 cannot be read."));
    if (stored == Stored::Yes)
        sayDesignIsStored();
    return stored == Stored::Yes;
}

void MainWindow::sayDesignIsStored()
{
    const int kept = m_design->rowsWithoutGroups();
    const QString stored = tr("The design parameters are in the project file.");
    if (kept == 0)
        say(stored);
    else if (kept == 1)
        say(stored + QLatin1Char(' ') + tr("1 row without groups is kept with the page."));
    else
        say(stored + QLatin1Char(' ') +
            tr("%1 rows without groups are kept with the page.").arg(kept));
}

/// The window with its Save As cannot be reached from the dialog.
bool MainWindow::storeDesignElsewhere()
{
    const QString path = m_document->path();
    const QString sentence = tr("The design parameters cannot be stored in the file %1.")
                                 .arg(QDir::toNativeSeparators(path)) +
                             QLatin1Char('\n') + projectReason(path, VKD_ZOB_MOVED);
    constexpr int GoBack = 1;
    if (VKD_QT_MessageBox::warning(this, tr("Workbench"), sentence, tr("&Save Project As..."),
                                   tr("&Go Back"), QString(), 0, GoBack) == GoBack ||
        !saveAs())
        return false;
    m_design->setDocument(m_document.get());
    return storeDesign();
}

/// With what was checked in the dialog of the groups, so that picking adds to it and takes away.
void MainWindow::startPicking()
{
    std::vector<int> groups;
    VKD_H_SelGRP_Dialog::getAniSelectionFromZob(VKD_H_SelGRP_Dialog::StartOfPicking, groups);
    m_view->setPickedGroups(groups);
    m_view->setPicking(true);
    m_banner->setGroupsWithoutAreas(m_groups->groupsWithoutAreas());
    showPicked();
    m_banner->show();
    enableActions();
    activateWindow(); // dialogs that go together leave some desktops without an active window
    say(tr("Pick groups in the view, or by Enter in the list of groups."));
}

/// The dialog takes them from the project. What cannot be stored stays picked.
void MainWindow::takePicked()
{
    const auto store = [this] {
        return VKD_H_SelGRP_Dialog::putAniSelectionToZob(index(), m_view->pickedGroups()).code;
    };
    if (!withProject(store, tr("The picked groups cannot be stored in the file %1.")))
        return;
    stopPicking();
    runDesign();
}

void MainWindow::stopPicking()
{
    m_view->setPicking(false);
    m_view->setPickedGroups({});
    m_groups->setMarkedGroup(AnimatorView::NoGroup);
    m_banner->hide();
    enableActions();
    statusBar()->clearMessage();
}

/// So that groups can be picked by the keyboard, too.
void MainWindow::chooseGroup(int group)
{
    if (!m_view->isPicking())
        return;
    std::vector<int> groups = m_view->pickedGroups();
    const auto place = std::find(groups.begin(), groups.end(), group);
    if (place == groups.end())
        groups.push_back(group);
    else
        groups.erase(place);
    m_view->setPickedGroups(groups);
    showPicked();
}

void MainWindow::showPicked()
{
    m_banner->setPicked(m_view->pickedGroups());
}

OutputDialog* MainWindow::output()
{
    if (!m_output && canRead() && !m_output) { // another event may have made it meanwhile
        m_seenOutput.look(index());
        makeOutput(OutputState::read(index()));
    }
    return m_output.get();
}

void MainWindow::makeOutput(const OutputState& state)
{
    const WaitCursor cursor;
    m_output = std::make_unique<OutputDialog>(m_document.get(), state, this);
    m_output->addActions(m_actions->besideDialogs());
    connect(m_output.get(), &OutputDialog::choiceChanged, this, &MainWindow::refreshScript);
    connect(m_output.get(), &QDialog::accepted, this, [this] {
        if (!storeOutput())
            showOutput();
    });
    connect(m_output.get(), &QDialog::rejected, this, [this] {
        m_output.release()->deleteLater(); // it is still busy with closing
        say(tr("The choice of plots is again that of the project."));
        refreshScript();
    });
}

void MainWindow::remakeOutput(const OutputPresent& before)
{
    makeOutput(before.state);
    m_output->setPresent(before);
}

void MainWindow::showOutput()
{
    const bool isFirst = !m_output;
    if (!output())
        return;
    if (isFirst)
        refreshScript();
    if (!m_output->testAttribute(Qt::WA_Moved)) // beside the script, which follows each click
        moveWithinScreen(m_output.get(), mapToGlobal(m_groupDock->pos()));
    m_output->show();
    m_output->raise();
    m_output->activateWindow();
}

bool MainWindow::storeOutput()
{
    if (!output())
        return false;
    const OutputState state = m_output->state();
    const auto store = [this, &state](SeenPart::Newer newer) {
        return m_seenOutput.store(
            index(), [this, &state] { return state.put(index()); }, newer);
    };
    const Stored stored =
        storePart(store, tr("The choice of plots cannot be stored in the file %1."));
    if (stored == Stored::Reload)
        reloadOutput();
    if (stored != Stored::Yes)
        return false;
    m_output->setUnchanged();
    showModified();
    say(tr("The choice of plots is in the project file."));
    return true;
}

/// The dialog may be busy with closing.
void MainWindow::reloadOutput()
{
    OutputPresent present = m_output->present();
    present.isChanged = false;
    m_output.release()->deleteLater();
    if (output())
        m_output->setPresent(present);
    refreshScript();
}

void MainWindow::showNoScript()
{
    m_script->setOtherScript(QString());
    m_actions->setHasScript(false);
    showModified();
}

void MainWindow::refreshScript()
{
    if (!m_document)
        return;
    const bool isFirst = !m_output;
    if (!output())
        return showNoScript();
    const WaitCursor cursor;
    const QString script = m_output->script(m_script->english());
    if (isFirst && m_script->script().isEmpty())
        m_script->setOtherScript(script);
    else
        m_script->setScript(script);
    showModified();
    m_actions->setHasScript(!script.isEmpty());
    refreshSheet();
}

void MainWindow::setKeywords(bool english)
{
    if (m_document && !output())
        return m_script->setEnglish(!english);
    WindowSettings().setEnglishKeywords(english);
    if (m_document)
        m_script->setOtherScript(m_output->script(english));
    refreshSheet();
}

void MainWindow::copyScript()
{
    QApplication::clipboard()->setText(m_script->script());
    say(tr("The script is on the clipboard."));
}

void MainWindow::saveScript()
{
    const QString proposal = QDir(folder()).filePath(
        QFileInfo(m_document->path()).completeBaseName() + QLatin1String(".dat"));
    const QString path =
        chooseFileToSave(this, tr("Save Script"), proposal,
                         tr("Scripts (*.dat)") + QLatin1String(";;") + tr("All files (*)"),
                         QStringLiteral("dat"), m_document->path());
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray bytes = m_script->script().toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return complainOfWriting(path, file.errorString());
    say(tr("The script is saved in %1.").arg(QDir::toNativeSeparators(path)));
}

/// The pages take their texts when they are made, so the output page is made anew.
void MainWindow::setLanguage(int language)
{
    if (vkd_lib_getvalue(VKD_SETTING_LANGUAGE) == language)
        return;
    if (m_document && !canRead()) // all texts of the project are read anew
        return m_actions->setTexts();
    const auto before = m_output ? std::make_optional(m_output->present()) : std::nullopt;
    m_output.reset();
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    VKD_QT_InitTranslator::languageChanged();
    WindowSettings().setLanguage(language);
    remakeTextOutput();
    if (before)
        remakeOutput(*before);
    refreshScript();
    say(tr("The language is now English."));
}

void MainWindow::showHelp(const QString& topic, QWidget* caller)
{
    const QByteArray book = topic.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray page = topic.section(QLatin1Char('/'), 1).toUtf8();
    if (!VKD_T_Help::show(caller, book.constData(), page.constData()))
        complain(tr("The help is not installed."));
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About"),
                       tr("Workbench %1\n\nHosts the pages for design parameters and graphical "
                          "output on projects of their own.")
                           .arg(QApplication::applicationVersion()));
}

} // namespace workbench
