#include "project/output/OutputState.h"
#include "project/output/TextOutputState.h"
#include "ProjectTest.h"
#include "window/output/OutputDialog.h"
#include "window/textoutput/ExtentFields.h"

#include <VKD_H_ZOBDoc.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <functional>

using namespace windowtest;
using workbench::ExtentFields;
using workbench::MainWindow;
using workbench::OutputDialog;
using workbench::OutputState;
using workbench::TextOutputState;

namespace {
/// Returns "-" if the change bar is hidden, otherwise its text and the names of its actions.
QString bar(const QWidget& window)
{
    const auto frame = find<QWidget>(window, "ChangeBar");
    if (!frame->isVisible())
        return QStringLiteral("-");
    QString text = find<QLabel>(*frame, "ChangeText")->text();
    for (const QToolButton* button : frame->findChildren<QToolButton*>())
        if (const QAction* action = button->defaultAction(); action && button->isVisible())
            text += QLatin1String(action->isEnabled() ? " +" : " -") + action->objectName();
    return text;
}

QString records(const QWidget& window)
{
    const auto model = find<QTableView>(window, "Records")->model();
    QString text;
    for (int column = 0; column < model->columnCount(); ++column)
        for (int row = 0; row < model->rowCount(); ++row)
            text += model->index(row, column).data().toString() + QLatin1Char(' ');
    return text;
}

void pressButton(QWidget* box, const QString& text)
{
    for (QAbstractButton* button : qobject_cast<QMessageBox*>(box)->buttons())
        if (button->text() == text)
            return button->click();
    qFatal("no such button");
}

/// A part of the project and its dialog, with a change by the user, a change by another program,
/// and functions that return whether the dialog or the project contains the user's change.
struct Part
{
    std::function<void(QWidget& dialog)> change;
    std::function<void(const QString& project)> changeOutside;
    std::function<bool(const QWidget& dialog)> showsMine;
    std::function<bool(const QString& project)> hasMine;
};

/// Changes a row as another program would.
void setRow(const QString& project)
{
    commandLine({QStringLiteral("rows"), project, QStringLiteral("--set-row"), QStringLiteral("1"),
                 QStringLiteral("hio=0.077")});
}

Part designPart()
{
    return {[](QWidget& dock) { deleteDesignRow(dock); }, setRow,
            [](const QWidget& dialog) {
                const auto table = find<QTableWidget>(dialog, "table");
                bool isTheirs = false;
                for (int row = 0; row < table->rowCount(); ++row)
                    isTheirs |= table->item(row, 2)->text().contains(QLatin1String("77.0"));
                return !isTheirs;
            },
            [](const QString& project) {
                return !commandLine({QStringLiteral("rows"), project}).contains("77.0");
            }};
}

Part outputPart()
{
    const auto plots = [](const QWidget& dialog) {
        return dialog.findChild<QTreeWidget*>()->topLevelItem(0);
    };
    return {
        [plots](QWidget& dialog) { plots(dialog)->setCheckState(0, Qt::Unchecked); },
        [](const QString& project) {
            const auto document = VKD_H_ZOBDoc::open(project);
            OutputState state = OutputState::read(document->handle());
            state.leftOutNumbers = {1};
            QVERIFY(state.put(document->handle()).isOk());
        },
        [plots](const QWidget& dialog) { return plots(dialog)->checkState(0) == Qt::Unchecked; },
        [](const QString& project) {
            const auto document = VKD_H_ZOBDoc::open(project);
            return OutputState::read(document->handle()).leftOutNumbers.isEmpty();
        }};
}

Part textOutputPart()
{
    return {
        [](QWidget& dialog) { find<QCheckBox>(dialog, "ReactionList")->click(); },
        [](const QString& project) {
            const auto document = VKD_H_ZOBDoc::open(project);
            auto state = TextOutputState::read(document->handle(), ExtentFields::DefaultLists);
            state.leftOutLoadCases = {1};
            QVERIFY(state.put(document->handle()).isOk());
        },
        [](const QWidget& dialog) { return !find<QCheckBox>(dialog, "ReactionList")->isChecked(); },
        [](const QString& project) {
            const auto document = VKD_H_ZOBDoc::open(project);
            return TextOutputState::read(document->handle(), 0).leftOutLoadCases.isEmpty();
        }};
}
} // namespace

/// Tests changes by other programs to the project that is open in the window.
class tst_outsideChanges : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void news_data()
    {
        const Columns<QByteArray, QString> row("event", "bar");
        const QString deleted =
            QStringLiteral("The project file was deleted or moved. The open project can still be "
                           "saved under another name. +SaveAs");
        row("changed", "change", "Another program has changed the project. +Reload");
        row("deleted", "rm", deleted);
        row("moved", "mv", deleted);
        row("replaced", "cp",
            "The project file was replaced by another file. The open project can still be saved "
            "under another name. +Reload +SaveAs");
    }

    void news()
    {
        QFETCH(const QByteArray, event);
        QFETCH(const QString, bar);
        const auto window = open("mine.zob");
        const QString before = records(*window);
        QCOMPARE(::bar(*window), QStringLiteral("-"));
        if (event == "change") {
            setRow(path("mine.zob"));
        } else {
            QVERIFY(QFile::rename(path("mine.zob"), path("moved.zob")));
            if (event != "mv")
                QFile::remove(path("moved.zob"));
            if (event == "cp")
                makeProject(path("mine.zob"), QStringLiteral("slab"));
        }
        QTRY_COMPARE(::bar(*window), bar);
        QCOMPARE(records(*window) != before, event == "change");
        const auto groups = find<QTreeWidget>(*window, "GroupList");
        const int groupCount = groups->topLevelItemCount();
        if (event == "mv")
            QVERIFY(QFile::rename(path("moved.zob"), path("mine.zob"))); // the file is back
        else if (event != "rm")
            trigger(*window, "Reload");
        if (event != "rm")
            QTRY_COMPARE(::bar(*window), QStringLiteral("-"));
        QCOMPARE(groups->topLevelItemCount() != groupCount, event == "cp");
    }

    void newerDataAreAskedAbout_data()
    {
        const Columns<QByteArray, QString, bool, bool> row("part", "answer", "isMine", "isOpen");
        for (const char* part : {"Design", "Output", "TextOutput"}) {
            const auto name = [part](const char* answer) {
                return QByteArray(part) + ", " + answer;
            };
            const bool isDock = qstrcmp(part, "TextOutput") != 0; // Apply does not close the dock
            row(name("overwrite"), part, "&Overwrite", true, isDock);
            row(name("reload"), part, "&Reload", false, true);
            row(name("go back"), part, "&Go Back", true, true);
        }
    }

    /// OK or Apply asks for confirmation. The project contains the user's state only after
    /// Overwrite. The dialog shows the user's state again after Go Back, and the newer state after
    /// Reload.
    void newerDataAreAskedAbout()
    {
        QFETCH(const QByteArray, part);
        QFETCH(const QString, answer);
        QFETCH(const bool, isMine);
        QFETCH(const bool, isOpen);
        const bool isDesign = part == "Design";
        const Part it = isDesign           ? designPart()
                        : part == "Output" ? outputPart()
                                           : textOutputPart();
        const auto window = open("asked.zob");
        bool isAsked = false, wasOpen = false, wasMine = true;
        const auto look = [&](QWidget* dialog) {
            wasOpen = dialog && dialog->isVisible();
            wasMine = !wasOpen || it.showsMine(*dialog);
        };
        const auto accept = [&](QWidget* dialog) {
            it.change(*dialog);
            it.changeOutside(path("asked.zob"));
            whenModal([&](QWidget* box) {
                isAsked = true;
                pressButton(box, answer);
            });
            isDesign ? applyDesign(*window) : qobject_cast<QDialog*>(dialog)->accept();
        };
        trigger(*window, part);
        const QString name = QString::fromLatin1(part + (isDesign ? "Dock" : "Dialog"));
        accept(window->findChild<QWidget*>(name));
        QTRY_VERIFY(window->findChildren<QDialog*>(name).size() < 2);
        look(window->findChild<QWidget*>(name));
        QCOMPARE(window->isWindowModified(),
                 isOpen && isMine && answer != QLatin1String("&Overwrite"));
        QVERIFY(isAsked);
        QCOMPARE(wasOpen, isOpen);
        QCOMPARE(wasMine, isMine);
        QCOMPARE(it.hasMine(path("asked.zob")), answer == QLatin1String("&Overwrite"));
    }

    /// An unsaved choice and unsaved rows survive Reload. Afterwards, OK and Apply ask for
    /// confirmation.
    void reloadKeepsTheChoice()
    {
        const auto window = open("saved.zob");
        changeChoice(*window);
        const QString chosen = script(*window);
        trigger(*window, "TextOutput");
        const Part text = textOutputPart();
        text.change(*find<QDialog>(*window, "TextOutputDialog"));
        deleteDesignRow(*openDesign(*window));
        const QStringList entered = designCells(*window);
        outputPart().changeOutside(path("saved.zob"));
        setRow(path("saved.zob"));
        QTRY_VERIFY(bar(*window) != QLatin1String("-"));
        trigger(*window, "Reload");
        QTRY_COMPARE(script(*window), chosen);
        QCOMPARE(designCells(*window), entered);
        QVERIFY(window->isWindowModified());
        QVERIFY(text.showsMine(*find<QDialog>(*window, "TextOutputDialog")));
        find<QDialog>(*window, "TextOutputDialog")->accept();
        int questions = 0;
        const auto overwrite = [&questions](QWidget* box) {
            ++questions;
            pressButton(box, QStringLiteral("&Overwrite"));
        };
        whenModal(overwrite);
        find<QDialog>(*window, "OutputDialog")->accept();
        QCOMPARE(questions, 1);
        whenModal(overwrite);
        applyDesign(*window);
        QCOMPARE(questions, 2);
        QVERIFY(!window->isWindowModified());
    }

    /// A name that is being typed is not applied before the user has finished it.
    void newDataWhileTyping()
    {
        const auto window = open("typed.zob");
        trigger(*window, "RenameOutput");
        const auto list = find<QListWidget>(*window, "OutputList");
        const QPointer<QLineEdit> editor = list->findChild<QLineEdit*>();
        editor->setText(QStringLiteral("Wa"));
        outputPart().changeOutside(path("typed.zob"));
        window->activateWindow();
        QEvent activation(QEvent::ActivationChange);
        QApplication::sendEvent(window.get(), &activation);
        QApplication::processEvents();
        QVERIFY(editor);
        QTest::keyClicks(editor, QStringLiteral("lls"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(bar(*window) != QLatin1String("-"));
        QCOMPARE(list->item(0)->text(), QStringLiteral("Walls"));
    }

    void undoneAfterNewerData_data()
    {
        const Columns<QByteArray, bool, bool> row("part", "isReloaded", "isEqual");
        row("rows", "Design", false, false);
        row("rows, reloaded", "Design", true, false);
        row("choice", "Output", false, false);
        row("choice, reloaded", "Output", true, false);
        row("equal choice", "Output", false, true);
        row("equal choice, reloaded", "Output", true, true);
    }

    /// Another program stores a newer state. Undo then leads to a state that is not in the project,
    /// or to the state that the other program has stored.
    void undoneAfterNewerData()
    {
        QFETCH(const QByteArray, part);
        QFETCH(const bool, isEqual);
        const bool isDesign = part == "Design";
        const auto window = open("undone.zob");
        trigger(*window, part);
        if (isEqual) {
            changeChoice(*window);
            const OutputState mine = window->findChild<OutputDialog*>()->state();
            const auto document = VKD_H_ZOBDoc::open(path("undone.zob"));
            QVERIFY(mine.put(document->handle()).isOk());
        } else {
            (isDesign ? designPart() : outputPart()).changeOutside(path("undone.zob"));
        }
        const QString name = QString::fromLatin1(part + (isDesign ? "Dock" : "Dialog"));
        isDesign ? deleteDesignRow(*window)
                 : find<QTreeWidget>(*window, "m_list")
                       ->topLevelItem(1)
                       ->setCheckState(0, Qt::Unchecked);
        QTRY_VERIFY(bar(*window) != QLatin1String("-"));
        QFETCH(const bool, isReloaded);
        if (isReloaded)
            trigger(*window, "Reload");
        QTRY_COMPARE(window->findChildren<QDialog*>(name).size(), isDesign ? 0 : 1);
        trigger(*find<QWidget>(*window, name.toLatin1()), "undo");
        QCoreApplication::processEvents();
        QTRY_COMPARE(window->isWindowModified(), !isEqual);
    }

    void saveAsWithOpenDialogs_data()
    {
        const Columns<QByteArray, QByteArray, QString> row("event", "place", "reason");
        const char* gone = "It was deleted or moved while it was open.";
        const char* replaced = "It was replaced by another file while it was open.";
        row("deleted", "rm", "new.zob", gone);
        row("deleted, in its place", "rm", "mine.zob", gone);
        row("moved", "mv", "new.zob", gone);
        row("replaced", "cp", "new.zob", replaced);
        row("replaced, in its place", "cp", "mine.zob", replaced);
    }

    /// Save As includes the input of open dialogs. Apply in the design dock also offers Save As.
    void saveAsWithOpenDialogs()
    {
        QFETCH(const QByteArray, event);
        QFETCH(const QByteArray, place);
        QFETCH(const QString, reason);
        const auto window = open("mine.zob");
        const QString model = records(*window);
        changeChoice(*window);
        const QString chosen = script(*window);
        QStringList messages;
        const auto saveIn = [this, &place](QWidget* dialog) {
            if (QFileInfo::exists(path(place)))
                whenModal([](QWidget* box) { press(box, QMessageBox::Yes); });
            enterFile(dialog, path(place));
        };
        deleteDesignRow(*openDesign(*window));
        QVERIFY(QFile::rename(path("mine.zob"), path("moved.zob")));
        if (event != "mv")
            QFile::remove(path("moved.zob"));
        if (event == "cp")
            makeProject(path("mine.zob"), QStringLiteral("slab"));
        whenModal([&](QWidget* box) {
            messages << qobject_cast<QMessageBox*>(box)->text();
            whenModal(saveIn);
            pressButton(box, QStringLiteral("&Save Project As..."));
        });
        applyDesign(*window);
        QCOMPARE(messages.join(QLatin1Char('|')),
                 QStringLiteral("The design parameters cannot be stored in the file %1.\n%2")
                     .arg(path("mine.zob"), reason));
        QVERIFY(window->windowTitle().startsWith(QString::fromUtf8(place)));
        QVERIFY(!window->isWindowModified());
        QTRY_COMPARE(script(*window), chosen);
        MainWindow again;
        QVERIFY(again.openProject(path(place)));
        QTRY_COMPARE(script(again), chosen);
        QCOMPARE(records(again), records(*window));
        QVERIFY(records(again) != model);
    }

    /// A choice that is stored by one window is shown in the other window.
    void twoWindows()
    {
        const auto mine = open("both.zob");
        MainWindow theirs;
        theirs.show();
        QVERIFY(theirs.openProject(path("both.zob")));
        QTRY_VERIFY(!script(theirs).isEmpty());
        theirs.activateWindow();
        // A menu of the table is not destroyed while it is open.
        const QPointer<QMenu> menu = new QMenu(find<QTableWidget>(*openDesign(theirs), "table"));
        menu->addAction(QStringLiteral("action"));
        menu->popup({});
        deleteDesignRow(*openDesign(*mine));
        applyDesign(*mine);
        theirs.activateWindow();
        QTRY_VERIFY(theirs.isActiveWindow());
        QEvent activation(QEvent::ActivationChange);
        QApplication::sendEvent(&theirs, &activation);
        QApplication::processEvents();
        QVERIFY(menu);
        menu->close();
        QTRY_COMPARE(records(theirs), records(*mine));
        QCOMPARE(designCells(theirs), designCells(*mine));
        QCOMPARE(theirs.focusWidget(), find<QTableWidget>(theirs, "table"));
        changeChoice(*mine);
        const QString chosen = script(*mine);
        QVERIFY(script(theirs) != chosen);
        find<QDialog>(*mine, "OutputDialog")->accept();
        QTRY_COMPARE(script(theirs), chosen);
        QCOMPARE(bar(*mine), QStringLiteral("-"));
        // Unsaved rows are not replaced, and the bar reports the newer rows.
        deleteDesignRow(*find<QWidget>(theirs, "DesignDock"));
        const QStringList entered = designCells(theirs);
        setRow(path("both.zob"));
        QTRY_VERIFY(bar(theirs).startsWith(
            QLatin1String("Another program has changed the design parameters. Your unsaved rows")));
        QCOMPARE(designCells(theirs), entered);
        QVERIFY(theirs.isWindowModified());
        whenModal([](QWidget* box) { pressButton(box, QStringLiteral("&Overwrite")); });
        applyDesign(theirs);
        QCOMPARE(bar(theirs), QStringLiteral("Another program has changed the project. +Reload"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_outsideChanges)
#include "tst_outsideChanges.moc"
