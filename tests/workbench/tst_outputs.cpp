#include "project/output/OutputList.h"
#include "project/WholeFiles.h"
#include "ProjectTest.h"
#include "window/output/OutputDialog.h"
#include "window/outputs/CopyOutputsDialog.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Ok.h>

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTreeWidget>

using namespace windowtest;
using namespace workbench;

namespace {
/// Returns the names in the window's list, with marks for the current name and names in italics.
QString listed(const QWidget& window)
{
    auto list = find<QListWidget>(window, "OutputList");
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) {
        const QString mark(list->item(i)->font().italic() ? QStringLiteral("/") : QString());
        texts << (i == list->currentRow() ? QStringLiteral(">") : QString()) + mark +
                     list->item(i)->text() + mark;
    }
    return texts.join(QLatin1Char('|'));
}

QLineEdit* nameEditor(const QWidget& window)
{
    const auto list = find<QListWidget>(window, "OutputList");
    return qobject_cast<QLineEdit*>(list->indexWidget(list->currentIndex()));
}

QString typedIn(const QWidget& window)
{
    const QLineEdit* editor = nameEditor(window);
    return editor ? editor->text() : QString();
}

QLineEdit* typeName(const QWidget& window, const char* name)
{
    QLineEdit* editor = nameEditor(window);
    editor->setText(QLatin1String(name));
    return editor;
}

void enterName(const QWidget& window, const char* name)
{
    QTest::keyClick(typeName(window, name), Qt::Key_Return);
}

OutputDialog* outputDialog(const QWidget& window)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // destroys the old dialog
    return window.findChild<OutputDialog*>();
}

QTreeWidget* plots(const QWidget& window)
{
    return outputDialog(window)->findChild<QTreeWidget*>();
}
} // namespace

/// Tests the outputs of a project.
class tst_outputs : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Unsaved choices are preserved when another output is shown, and storing stores all outputs.
    void switching()
    {
        const auto window = open("a.zob");
        const QString proposed = script(*window);
        changeChoice(*window);
        const QString changed = script(*window);
        trigger(*window, "NewOutput");
        QCOMPARE(listed(*window), QStringLiteral("/Output 1/|>/Output 2/"));
        QCOMPARE(script(*window), QString());
        QStringList refusals;
        readMessage(refusals);
        enterName(*window, "output  1");
        QTRY_COMPARE(refusals, QStringList(QStringLiteral("Another output has this name.")));
        QTRY_COMPARE(typedIn(*window), QStringLiteral("output  1"));
        readMessage(refusals);
        trigger(*window, "NextOutput");
        QTRY_COMPARE(typedIn(*window), QStringLiteral("output  1"));
        QCOMPARE(listed(*window), QStringLiteral("/Output 1/|>/Output 2/"));
        typeName(*window, " Walls ");
        trigger(*window, "NextOutput"); // while the name is being edited
        QTRY_COMPARE(listed(*window), QStringLiteral(">/Output 1/|/Walls/"));
        QTRY_COMPARE(script(*window), changed);
        trigger(*window, "PreviousOutput");
        QTRY_COMPARE(script(*window), QString());
        QDir(m_folder->path()).mkdir(QStringLiteral("%2"));
        answerFileDialog(path("%2"));
        trigger(*window, "SaveAllScripts");
        QVERIFY(window->statusBar()->currentMessage().endsWith(
            QLatin1String("%2: 1. Outputs without plots: Walls")));
        plots(*window)->topLevelItem(1)->setCheckState(0, Qt::Checked);
        QTRY_VERIFY(!script(*window).isEmpty());
        const QString walls = script(*window);
        trigger(*window, "PreviousOutput");
        QTRY_COMPARE(script(*window), changed);
        trigger(*window, "MoveOutputDown");
        trigger(*window, "NextOutput");
        QTRY_COMPARE(script(*window), walls);
        QCOMPARE(listed(*window), QStringLiteral(">/Walls/|/Output 1/"));
        window->findChild<OutputDialog*>()->accept();
        QCOMPARE(listed(*window), QStringLiteral(">Walls|Output 1"));
        QVERIFY(!window->isWindowModified());
        commandLine({QStringLiteral("script"), path("a.zob"), QStringLiteral("--all"),
                     QStringLiteral("--into"), path("all")});
        answerFileDialog(m_folder->path());
        trigger(*window, "SaveAllScripts");
        for (const char* name : {"Walls.dat", "Output 1.dat"})
            QCOMPARE(readFile(path(name)), readFile(path("all/") + QLatin1String(name)));
        QCOMPARE(readFile(path("Walls.dat")), walls.toUtf8());
        QCOMPARE(readFile(path("Output 1.dat")), changed.toUtf8());
        answerFileDialog(m_folder->path());
        trigger(*window, "ExportAllSheets");
        QVERIFY(readFile(path("Walls.pdf")).startsWith("%PDF"));
        QDir(m_folder->path()).mkpath(QStringLiteral("second/Output 1.pdf"));
        QStringList messages;
        whenModal([&](QWidget* folders) {
            whenModal([&](QWidget* question) {
                readMessage(messages);
                for (QPushButton* button : question->findChildren<QPushButton*>())
                    if (button->text() == QLatin1String("&Replace"))
                        return button->click();
            });
            enterFile(folders, path("second"));
        });
        trigger(*window, "ExportAllSheets");
        QTRY_COMPARE(messages.size(), 1);
        QVERIFY2(messages[0].endsWith(
                     QLatin1String("\n\nAlready saved:\nWalls.pdf\nNot saved:\nOutput 1.pdf")),
                 qPrintable(messages[0]));
    }

    void focusAfterNaming_data()
    {
        const Columns<QByteArray, Qt::Key, bool> row("action", "key", "isNew");
        row("new", "NewOutput", Qt::Key_Return, true);
        row("duplicate, proposed name", "DuplicateOutput", Qt::Key_Escape, true);
        row("renamed", "RenameOutput", Qt::Key_Return, false);
    }

    /// A new output can be filled at once. It does not show the search of the previous output.
    void focusAfterNaming()
    {
        QFETCH(const QByteArray, action);
        QFETCH(const Qt::Key, key);
        QFETCH(const bool, isNew);
        const auto window = open("a.zob");
        openOutput(*window);
        trigger(*outputDialog(*window), "findPlots");
        find<QLineEdit>(*window, "searchWords")->setText(QStringLiteral("displ"));
        trigger(*window, action);
        QTest::keyClick(typeName(*window, "Walls"), key);
        const QTreeWidget* tree = plots(*window);
        const QWidget* list = find<QWidget>(*window, "OutputList");
        QTRY_COMPARE(window->focusWidget(), isNew ? tree : list);
        QCOMPARE(tree->topLevelItem(0)->isHidden(), !isNew);
        QCOMPARE(find<QWidget>(*window, "plotSearch")->isVisible(), !isNew);
    }

    void typedName_data()
    {
        const Columns<QByteArray> row("end");
        for (const char* end : {"Save", "SaveAs", "Reload", "German", "Quit"})
            row(end, end);
        row("the script is updated", "");
    }

    /// A name that is being typed is not lost.
    void typedName()
    {
        QFETCH(const QByteArray, end);
        const auto window = open("a.zob");
        QPointer<OutputDialog> dialog = window->findChild<OutputDialog*>();
        trigger(*window, "RenameOutput");
        QLineEdit* editor = typeName(*window, "Walls");
        if (end == "Quit")
            whenModal([](QWidget* box) { press(box, QMessageBox::Save); });
        if (end == "SaveAs")
            answerFileDialog(path("b.zob"));
        if (end.isEmpty()) {
            Q_EMIT dialog->choiceChanged();
            QTest::keyClick(editor, Qt::Key_Return);
        } else {
            trigger(*window, end);
        }
        QTRY_VERIFY(listed(*window).contains(QLatin1String("Walls")));
        const QByteArray file = end == "SaveAs" ? "b.zob" : "a.zob";
        const bool isStored = end.startsWith("Save") || end == "Quit";
        QCOMPARE(commandLine({QStringLiteral("outputs"), path(file)}).trimmed() == "Walls",
                 isStored);
    }

    /// A name that is not allowed is reported, and the window stays open.
    void refusedInput()
    {
        const auto window = open("a.zob");
        trigger(*window, "RenameOutput");
        typeName(*window, "  ");
        QStringList messages;
        readMessage(messages);
        QVERIFY(!window->close());
        QCOMPARE(messages, {QStringLiteral("An output needs a name.")});
        QCOMPARE(typedIn(*window), QStringLiteral("  "));
        QVERIFY(typeName(*window, "Output 1"));
        trigger(*window, "DuplicateOutput");
        enterName(*window, "Walls");
        auto dock = find<QDockWidget>(*window, "OutputDock");
        auto field = find<QLineEdit>(*dock, "m_boxedEdit_edit");
        for (const char* action : {"PreviousOutput", "Save", "SaveAs"}) {
            field->setText(QStringLiteral("1,2,3"));
            dock->hide();
            trigger(*window, action);
            QTRY_COMPARE(window->focusWidget(), field);
            QVERIFY(dock->isVisible());
            QCOMPARE(listed(*window), QStringLiteral("Output 1|>/Walls/"));
        }
    }

    /// Undo and redo restore an output with its plots and load cases, in any language and after the
    /// project has been reloaded.
    void undoing()
    {
        const auto window = open("a.zob");
        const QString proposed = script(*window);
        const auto list = find<QListWidget>(*window, "OutputList");
        const auto undo = [&](Qt::KeyboardModifier redo = Qt::NoModifier) {
            QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier | redo);
            QCoreApplication::processEvents();
            return listed(*window);
        };
        trigger(*window, "DuplicateOutput");
        enterName(*window, "A & B");
        find<QTableWidget>(*outputDialog(*window), "LoadCases")
            ->item(2, 1)
            ->setCheckState(Qt::Unchecked);
        plots(*window)->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        QTRY_VERIFY(script(*window) != proposed);
        const QString changed = script(*window);
        const QSet<int> leftOut = outputDialog(*window)->state().leftOutNumbers;
        trigger(*window, "DeleteOutput");
        QCOMPARE(listed(*window), QStringLiteral(">Output 1"));
        QCOMPARE(script(*window), proposed);
        QCOMPARE(window->focusWidget(), list);
        const auto edit = find<QMenu>(*window, "EditMenu");
        QCOMPARE(edit->actions().at(0)->text(), QStringLiteral("&Undo Delete \"A && B\""));
        trigger(*window, "Reload");
        QTRY_COMPARE(listed(*window), QStringLiteral(">Output 1"));
        QCOMPARE(undo(), QStringLiteral("Output 1|>/A & B/"));
        QCOMPARE(script(*window), changed);
        QCOMPARE(outputDialog(*window)->state().leftOutNumbers, leftOut);
        trigger(*window, "German");
        QCOMPARE(edit->actions().at(0)->text(),
                 QStringLiteral("&Rückgängig: „Output 1 (2)“ umbenennen"));
        QCOMPARE(undo(), QStringLiteral("/Output 1/|>/Output 1 (2)/"));
        QCOMPARE(undo(), QStringLiteral(">Ausgabe 1"));
        QCOMPARE(edit->actions().at(1)->text(),
                 QStringLiteral("&Wiederholen: „Ausgabe 1“ duplizieren"));
        QTRY_VERIFY(!window->isWindowModified());
        undo(Qt::ShiftModifier);
        QCOMPARE(undo(Qt::ShiftModifier), QStringLiteral("/Output 1/|>/A & B/"));
        trigger(*window, "English");
        QTRY_COMPARE(script(*window), changed);
        QVERIFY(window->openProject(copy("b.zob")));
        QTRY_COMPARE(script(*window), proposed);
        QVERIFY(!edit->actions().at(0)->isEnabled());
    }

    void pageSteps_data()
    {
        const Columns<QByteArray> row("actions");
        row("language", "German");
        row("reloaded", "Reload");
        row("other output", "NewOutput PreviousOutput");
        row("deleted output", "NewOutput PreviousOutput DeleteOutput undo");
    }

    /// The undo steps of a page are preserved when the page is replaced.
    void pageSteps()
    {
        QFETCH(const QByteArray, actions);
        const auto window = open("a.zob");
        const auto stateAfter = [&window](const char* step) {
            trigger(*outputDialog(*window), step);
            const OutputState state = outputDialog(*window)->state();
            return state.page + QString::number(state.leftOutNumbers.size());
        };
        const QString initial = stateAfter("undo");
        find<QTableWidget>(*outputDialog(*window), "LoadCases")
            ->item(2, 1)
            ->setCheckState(Qt::Unchecked);
        changeChoice(*window);
        const QString last = stateAfter("redo");
        stateAfter("undo");
        for (const QByteArray& action : actions.split(' ')) {
            trigger(action == "undo" ? *find<QWidget>(*window, "OutputsDock") : *window, action);
            QCoreApplication::processEvents(); // shows the output
        }
        QCOMPARE(stateAfter("redo"), last);
        QVERIFY(stateAfter("undo") != initial);
        QCOMPARE(stateAfter("undo"), initial);
        QVERIFY(!find<QAction>(*outputDialog(*window), "undo")->isEnabled());
        QCoreApplication::processEvents();
        QTRY_VERIFY(!listed(*window).contains(QLatin1String(">/")));
    }

    /// A text that a field refuses stays in the field until the user discards it.
    void refusedText()
    {
        const auto window = open("a.zob");
        const auto field = [&] {
            return find<QLineEdit>(*outputDialog(*window), "m_boxedEdit_edit");
        };
        const QString accepted = field()->text();
        field()->setText(QStringLiteral("1.2.3"));
        const auto filter = [&] { return find<QLineEdit>(*outputDialog(*window), "ChoiceFilter"); };
        filter()->setText(QStringLiteral("1-3"));
        for (const char* action : {"Reload", "German"}) {
            trigger(*window, "RenameOutput");
            typeName(*window, "  ");
            QStringList messages;
            readMessage(messages);
            trigger(*window, action);
            QTRY_COMPARE(typedIn(*window), QStringLiteral("  "));
            QTest::keyClick(nameEditor(*window), Qt::Key_Escape);
            QCOMPARE(field()->text() + filter()->text(), QStringLiteral("1.2.31-3"));
        }
        QTRY_VERIFY(window->isWindowModified());
        whenModal([](QWidget* box) { press(box, QMessageBox::Cancel); });
        QVERIFY(!window->close());
        trigger(*window, "Output");
        whenModal([](QWidget* box) { press(box, QMessageBox::Discard); });
        QVERIFY(find<QDockWidget>(*window, "OutputDock")->close());
        QCOMPARE(field()->text(), accepted);
        QVERIFY(window->close());
    }

    /// Discard in the dock affects only its output.
    void discarding()
    {
        const auto window = open("a.zob");
        changeChoice(*window);
        const QString mine = script(*window);
        trigger(*window, "DuplicateOutput");
        enterName(*window, "Walls");
        plots(*window)->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
        QTRY_VERIFY(script(*window) != mine);
        QString question;
        whenModal([&question](QWidget* box) {
            question = qobject_cast<QMessageBox*>(box)->text();
            press(box, QMessageBox::Discard);
        });
        find<QDockWidget>(*window, "OutputDock")->close();
        QVERIFY(question.startsWith(QLatin1String("The output \"Walls\" has not yet")));
        QTRY_COMPARE(script(*window), mine);
        QCOMPARE(listed(*window), QStringLiteral("/Output 1/|>/Walls/"));
        trigger(*window, "PreviousOutput");
        QCoreApplication::processEvents(); // shows the output
        QCOMPARE(listed(*window), QStringLiteral(">/Output 1/|/Walls/"));
        QCOMPARE(script(*window), mine);
    }

    /// Discard shows the state that another program has stored, and Apply preserves its outputs.
    void othersOutputs()
    {
        const auto window = open("a.zob");
        changeChoice(*window);
        trigger(*window, "DuplicateOutput");
        enterName(*window, "Walls");
        auto document = VKD_H_ZOBDoc::open(path("a.zob"));
        OutputList theirs;
        theirs.setState({QString(), 0, {1}}, true);
        theirs.add(QStringLiteral("Theirs"), {});
        QVERIFY(theirs.put(document->handle()).isOk());
        trigger(*window, "Reload");
        QTRY_COMPARE(listed(*window), QStringLiteral("/Output 1/|>/Walls/|Theirs"));
        trigger(*window, "PreviousOutput");
        QCoreApplication::processEvents(); // shows the output
        outputDialog(*window)->reject();
        QTRY_COMPARE(listed(*window), QStringLiteral(">Output 1|/Walls/|Theirs"));
        QCOMPARE(outputDialog(*window)->state().leftOutNumbers, QSet<int>{1});
        theirs.add(QStringLiteral("More"), {});
        QVERIFY(theirs.put(document->handle()).isOk());
        whenModal([](QWidget* box) {
            qobject_cast<QMessageBox*>(box)->buttons().at(0)->click(); // Overwrite
        });
        trigger(*window, "Save");
        QCOMPARE(listed(*window), QStringLiteral(">Output 1|Walls|Theirs|More"));
        const OutputList stored = OutputList::read(document->handle());
        QCOMPARE(stored.size(), 4);
        QCOMPARE(stored.at(0).state.leftOutNumbers, QSet<int>{1});
    }

    /// Plots and load cases that the model does not have are kept after another plot has been
    /// chosen and stored.
    void copying()
    {
        const auto theirs = VKD_H_ZOBDoc::create(path("theirs.zob"));
        OutputList outputs;
        const auto foreign = QStringLiteral("<View>1</View><List_4>Checked:@X   $Y   ^Z</List_4>");
        outputs.setState({foreign, 0, {7777}}, true);
        QVERIFY(outputs.put(theirs->handle()).isOk() && theirs->close().isOk());
        const auto window = open("a.zob");
        vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, 2 * Patience);
        auto other = std::make_unique<OtherProgram>(path("theirs.zob"), OtherProgram::Storing);
        whenModal([&](QWidget* dialog) {
            enterFile(dialog, path("theirs.zob"));
            whenProgress([&other](QProgressDialog*) { other.reset(); });
        });
        trigger(*window, "CopyOutputs");
        QTRY_COMPARE(listed(*window), QStringLiteral("Output 1|>/theirs/"));
        const auto note = find<QLabel>(*window, "AbsentPlots");
        const auto isShown = [note] { return !note->isHidden(); };
        QCOMPARE(note->text(),
                 QStringLiteral("Checked plots that this model lacks: 1. They are kept."));
        find<QAbstractButton>(*window, "Button: Default settings")->click();
        QTRY_VERIFY(!isShown());
        const OutputDialog& dialog = *window->findChild<OutputDialog*>();
        const auto undo = find<QAction>(dialog, "undo");
        undo->trigger();
        QVERIFY(!undo->isEnabled());
        QTRY_VERIFY(isShown());
        find<QAction>(dialog, "redo")->trigger();
        QTRY_VERIFY(!isShown());
        undo->trigger();
        plots(*window)->topLevelItem(1)->setCheckState(0, Qt::Checked);
        window->findChild<OutputDialog*>()->accept();
        const auto document = VKD_H_ZOBDoc::open(path("a.zob"));
        const OutputState state = OutputList::read(document->handle()).at(1).state;
        QVERIFY(state.page.contains(QLatin1String("Checked:@X   $Y   ^Z")));
        QCOMPARE(state.leftOutNumbers, QSet<int>{7777});
    }

    void choosingNoOutputs()
    {
        const CopyOutputsDialog dialog({QStringLiteral("a"), QStringLiteral("b")}, nullptr);
        const auto list = find<QListWidget>(dialog, "OutputsToCopy");
        const auto ok = dialog.findChild<VKD_QT_Ok*>()->cmdOk();
        QString states;
        for (const int row : {0, 1, 0}) {
            const bool isChecked = list->item(row)->checkState() == Qt::Checked;
            list->item(row)->setCheckState(isChecked ? Qt::Unchecked : Qt::Checked);
            states += QString::number(int(ok->isEnabled()));
        }
        QCOMPARE(states, QStringLiteral("101"));
    }

    /// While another program is storing, no output is shown or saved with a part of its data.
    void unreadable()
    {
        const auto window = open("a.zob");
        const QString proposed = script(*window);
        trigger(*window, "DuplicateOutput");
        enterName(*window, "b");
        vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, 100);
        const OtherProgram other(path("a.zob"), OtherProgram::Storing);
        QStringList messages;
        for (const char* name : {"PreviousOutput", "NewOutput"}) {
            readMessage(messages);
            trigger(*window, name);
            QTRY_VERIFY(!messages.isEmpty());
            QVERIFY(messages.takeFirst().contains(QLatin1String("cannot be read")));
            QCOMPARE(listed(*window), QStringLiteral("Output 1|>/b/"));
            QCOMPARE(script(*window), proposed);
        }
        whenModal([&](QWidget* dialog) {
            enterFile(dialog, m_folder->path());
            readMessage(messages);
        });
        trigger(*window, "SaveAllScripts");
        QCOMPARE(messages.size(), 1);
        QVERIFY(!QFile::exists(path("b.dat")));
    }

    /// If the last file cannot be replaced, the preceding ones are restored.
    void wholeFiles()
    {
        const QDir folder(m_folder->path());
        writeFile(path("old"), "old");
        for (bool isBlocked : {true, false}) {
            WholeFiles files;
            for (const char* name : {"old", "new", "blocked"})
                QVERIFY(files.add(path(name), "text"));
            if (isBlocked)
                folder.mkdir(QStringLiteral("blocked"));
            QCOMPARE(files.commit(), !isBlocked);
            QCOMPARE(files.failedPath(), isBlocked ? path("blocked") : QString());
            QCOMPARE(files.replaced().size(), isBlocked ? 0 : 3);
            QCOMPARE(readFile(path("old")), QByteArray(isBlocked ? "old" : "text"));
            QCOMPARE(QFile::exists(path("new")), !isBlocked);
            folder.rmdir(QStringLiteral("blocked"));
        }
        QCOMPARE(folder.entryList({QStringLiteral("*.????????*")}), QStringList());
    }

    /// A chosen load case that is not offered is kept even if the tree shows the proposed plots.
    void leftOutLoadCase()
    {
        const auto window = open("a.zob");
        const auto rows = [&window] { return plots(*window)->topLevelItem(1)->child(0)->child(0); };
        rows()->child(2)->setCheckState(0, Qt::Checked);
        find<QTableWidget>(*window, "LoadCases")->item(2, 1)->setCheckState(Qt::Unchecked);
        trigger(*window, "NewOutput");
        enterName(*window, "Walls");
        trigger(*window, "PreviousOutput");
        QTRY_COMPARE(window->findChildren<OutputDialog*>().size(), 1);
        const QString title = rows()->child(2)->text(0);
        find<QTableWidget>(*window, "LoadCases")->item(2, 1)->setCheckState(Qt::Checked);
        QVERIFY(rows()->child(2)->text(0) != title);
        QCOMPARE(rows()->child(2)->checkState(0), Qt::Checked);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_outputs)
#include "tst_outputs.moc"
