#include "ProjectTest.h"
#include "window/main/runWindow.h"
#include "window/support/WindowSettings.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QDockWidget>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QProxyStyle>
#include <QStatusBar>
#include <QTreeWidget>

using namespace windowtest;
using workbench::MainWindow;

namespace {
QStringList recentFiles(const QWidget& window)
{
    QStringList paths;
    for (const QMenu* menu : window.findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            if (action->data().toString().endsWith(QLatin1String(".zob")))
                paths << action->data().toString();
    return paths;
}

/// Returns the window that runWindow() shows.
MainWindow* shownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto window = qobject_cast<MainWindow*>(widget))
            return window;
    qFatal("no window");
    return nullptr;
}

/// The style of a desktop on which a single click activates an item.
class ActivatingStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_ItemView_ActivateItemOnSingleClick ||
               QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// Saves the project under this name, or creates another project, and replaces an existing file.
void saveAs(const MainWindow& window, const QString& path, QStringList* messages = nullptr,
            const char* action = "SaveAs")
{
    whenModal([&](QWidget* dialog) {
        if (QFileInfo::exists(path))
            whenModal([&](QWidget* box) {
                if (messages)
                    readMessage(*messages);
                press(box, QMessageBox::Yes);
            });
        else if (messages)
            readMessage(*messages);
        enterFile(dialog, path);
    });
    trigger(window, action);
}

/// Leaves the journal of a program that was killed while it was storing, without the project.
/// SQLite would replay the journal into any file that gets the project's name.
void leaveJournal(const QString& project)
{
    const QString path = project + QLatin1String("-journal");
    QByteArray journal;
    VKD_H_ZOBDoc::create(project)->close();
    {
        const OtherProgram killed(project, OtherProgram::Storing);
        journal = readFile(path);
    }
    QFile::remove(project);
    writeFile(path, journal);
}
} // namespace

class tst_windowFiles : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void savedAs_data()
    {
        const Columns<QByteArray, QByteArray> row("place", "opened");
        row("new file", "new.zob", "new.zob");
        row("no suffix", "plain", "plain.zob");
        row("itself", "mine.zob", "mine.zob");
        row("itself by a link", "link.zob", "mine.zob");
        row("another project", "theirs.zob", "theirs.zob");
        row("no project", "noise.zob", "noise.zob");
        row("beside a journal", "crashed.zob", "crashed.zob");
    }

    /// The choices are copied, and their dialogs stay open. Changes that another program has not
    /// committed are not copied.
    void savedAs()
    {
        QFETCH(const QByteArray, place);
        QFETCH(const QByteArray, opened);
        const auto window = open("mine.zob");
        QFile::link(path("mine.zob"), path("link.zob"));
        copy("theirs.zob");
        writeFile(path("noise.zob"), "noise");
        leaveJournal(path("crashed.zob"));
        changeChoice(*window);
        trigger(*window, "TextOutput");
        find<QCheckBox>(*window, "ReactionList")->click();
        const QString chosen = script(*window);
        const bool isCopied = opened != "mine.zob";
        std::unique_ptr<OtherProgram> other;
        if (isCopied)
            other = std::make_unique<OtherProgram>(path("mine.zob"), OtherProgram::Changing);
        saveAs(*window, path(place));
        QVERIFY(window->windowTitle().startsWith(QString::fromUtf8(opened)));
        for (const char* dialog : {"OutputDialog", "TextOutputDialog"})
            QVERIFY(find<QDialog>(*window, dialog)->isVisible());
        QVERIFY(!window->isWindowModified());
        QTRY_COMPARE(script(*window), chosen);
        const auto again = reopen(opened);
        QCOMPARE(script(*again), chosen);
        trigger(*again, "TextOutput");
        QVERIFY(!find<QCheckBox>(*again, "ReactionList")->isChecked());
        other.reset();
        QCOMPARE(readFile(path("mine.zob")) == m_building, isCopied);
        int index = -1, length = 0;
        QCOMPARE(vkd_zob_open(path(opened).toUtf8().constData(), &index).code, VKD_ZOB_OK);
        QCOMPARE(vkd_zob_get(index, 9000, 1, nullptr, &length, 0), VKD_ZOB_NO_KEY);
        QCOMPARE(vkd_zob_close(index).code, VKD_ZOB_OK);
    }

    void savingFails_data()
    {
        const Columns<QByteArray, QByteArray, QString> row("action", "place", "message");
        const QString notSaved = QStringLiteral("The project cannot be saved in the file %1.\n");
        const QString notWritten = QStringLiteral("The file %1 cannot be written.\n");
        const QLatin1String noFolder("Its folder does not exist.");
        const QLatin1String isProtected("It or its folder is write-protected.");
        const QLatin1String isWritten("Another program is writing to it.");
        row("no folder", "SaveAs", "no/new.zob", notSaved + noFolder);
        row("protected folder", "SaveAs", "protected/new.zob", notSaved + isProtected);
        row("protected file", "SaveAs", "protected.zob", notSaved + isProtected);
        row("in use", "SaveAs", "used.zob", notSaved + isWritten);
        row("source in use", "SaveAs", "new.zob", notSaved + isWritten);
        row("disk full", "SaveAs", "full.zob",
            notSaved + QLatin1String("There is no space left on the disk."));
        row("new, no folder", "NewFromSample", "no/new.zob", notWritten + noFolder);
        row("new, protected folder", "NewFromSample", "protected/new.zob",
            notWritten + isProtected);
        row("new, in use", "NewFromSample", "used.zob", notWritten + isWritten);
        row("new, disk full", "NewFromSample", "full.zob",
            "The project cannot be created.\ncannot create %1: the disk is full or does not accept "
            "the data (File too large)");
    }

    void savingFails()
    {
        QFETCH(const QByteArray, action);
        QFETCH(const QByteArray, place);
        QFETCH(const QString, message);
        const auto window = open("mine.zob");
        QDir().mkdir(path("protected"));
        QFile::setPermissions(path("protected"), QFile::ReadOwner | QFile::ExeOwner);
        copy("used.zob");
        QFile::setPermissions(copy("protected.zob"), QFile::ReadOwner);
        const bool isSourceUsed = place == "new.zob";
        const OtherProgram other(path(isSourceUsed ? "mine.zob" : "used.zob"),
                                 isSourceUsed ? OtherProgram::Storing : OtherProgram::Taking);
        const QStringList before = QDir(m_folder->path()).entryList();
        QStringList messages;
        const Obstacle obstacle(place == "full.zob" ? "disk full" : "", path("mine.zob"));
        saveAs(*window, path(place), &messages, action);
        QCOMPARE(messages.join(QLatin1Char('|')),
                 QString(message).replace(QLatin1String("%1"), path(place)));
        QVERIFY(window->windowTitle().startsWith(QLatin1String("mine.zob")));
        QCOMPARE(QDir(m_folder->path()).entryList(), before);
        QFile::setPermissions(path("protected"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void openProjectIsNotReplaced_data()
    {
        const Columns<QByteArray, bool> row("action", "isThere");
        row("script", "SaveScriptAction", true);
        row("script in place of a lost project", "SaveScriptAction", false);
        row("sheets", "ExportSheetsAction", true);
        row("new project", "NewFromSample", true);
    }

    /// The user must enter another name, even after agreeing to replace the file.
    void openProjectIsNotReplaced()
    {
        QFETCH(const QByteArray, action);
        QFETCH(const bool, isThere);
        const auto window = open("mine.zob");
        if (!isThere)
            QFile::remove(path("mine.zob"));
        QStringList messages;
        const auto readComplaint = [&messages](QWidget* complaint) {
            messages << qobject_cast<QMessageBox*>(complaint)->text();
            whenModal([](QWidget* again) { again->close(); });
            press(complaint, QMessageBox::Ok);
        };
        const auto agree = [&readComplaint](QWidget* box) {
            whenModal(readComplaint);
            press(box, QMessageBox::Yes);
        };
        whenModal([&](QWidget* dialog) {
            isThere ? whenModal(agree) : whenModal(readComplaint);
            enterFile(dialog, path("mine.zob"));
        });
        trigger(*window, action);
        QCOMPARE(
            messages.join(QLatin1Char('|')),
            QStringLiteral("The project %1 is open.\nChoose another name.").arg(path("mine.zob")));
        QCOMPARE(QFile::exists(path("mine.zob")), isThere);
        QVERIFY(!isThere || readFile(path("mine.zob")) == m_building);
    }

    void recent()
    {
        QStringList expected;
        const auto window = open("0.zob");
        for (const char* name :
             {"0.zob", "1.zob", "2.zob", "3.zob", "4.zob", "5.zob", "6.zob", "7.zob", "8.zob"}) {
            QVERIFY(window->openProject(copy(name)));
            expected.prepend(path(name));
        }
        expected.removeLast(); // the list has eight entries
        QCOMPARE(recentFiles(*window), expected);
        QFile::link(path("4.zob"), path("link.zob"));
        QVERIFY(window->openProject(path("../") + QDir(m_folder->path()).dirName() +
                                    QLatin1String("/2.zob")));
        QVERIFY(window->openProject(path("link.zob")));
        expected.move(expected.indexOf(path("2.zob")), 0);
        expected.removeOne(path("4.zob"));
        expected.prepend(path("link.zob"));
        QCOMPARE(recentFiles(*window), expected);
        QFile::remove(path("8.zob"));
        QStringList messages;
        readMessage(messages);
        QVERIFY(!window->openProject(path("8.zob")));
        expected.removeOne(path("8.zob"));
        QCOMPARE(recentFiles(*window), expected);
        QCOMPARE(recentFiles(MainWindow()), expected);
    }

    /// Builds with Qt 5 and Qt 6 share the settings file. Qt 6 writes UTF-8, and older builds with
    /// Qt 5 wrote escaped characters.
    void recentFromBothVersionsOfQt()
    {
        QVERIFY(QDir().mkpath(path("ini/plib")));
        writeFile(path("ini/plib/workbench.ini"), "[General]\nrecentFiles=/T\\xfcr.zob, /Br\xc3\xbc"
                                                  "cke.zob\n");
        const auto expected = QStringLiteral("/T\u00fcr.zob|/Br\u00fccke.zob");
        QCOMPARE(workbench::WindowSettings().savedRecentFiles().join(QLatin1Char('|')), expected);
    }

    /// The start page replaces the panes while no project is open. Their layout is preserved.
    void startPage()
    {
        open("gone.zob");
        const auto before = open("here.zob");
        find<QDockWidget>(*before, "RecordDock")->hide();
        trigger(*before, "CloseProject");
        QCOMPARE(find<QTreeWidget>(*before, "GroupList")->topLevelItemCount(), 0);
        const auto view = find<QWidget>(*before, "AnimatorView");
        QCOMPARE(view->cursor().shape(), Qt::ArrowCursor); // no model to turn
        QVERIFY(find<QWidget>(*before, "ScriptDock")->isHidden());
        before->close();
        QFile::remove(path("gone.zob"));
        MainWindow window;
        window.openAfterPainting(QString());
        window.show();
        auto recent = find<QListWidget>(window, "RecentProjects");
        const QString folder = QDir::toNativeSeparators(m_folder->path());
        QCOMPARE(recent->item(0)->text(), QLatin1String("here\n") + folder);
        QCOMPARE(recent->item(1)->text(), QStringLiteral("gone\n%1 (not found)").arg(folder));
        recent->setCurrentRow(1);
        trigger(window, "RemoveRecent");
        QCOMPARE(recent->count(), 1);
        ActivatingStyle style;
        recent->setStyle(&style);
        const QSignalSpy chosen(find<QWidget>(window, "StartPage"), SIGNAL(projectChosen(QString)));
        QTest::mouseClick(recent->viewport(), Qt::LeftButton, Qt::NoModifier,
                          recent->visualItemRect(recent->item(0)).center());
        QCOMPARE(chosen.count(), 1);
        QTRY_VERIFY(find<QTreeWidget>(window, "GroupList")->topLevelItemCount() > 0);
        QVERIFY(!recent->isVisible());
        QVERIFY(find<QWidget>(window, "ScriptDock")->isVisible());
        QVERIFY(find<QWidget>(window, "RecordDock")->isHidden());
    }

    void drops_data()
    {
        const Columns<QStringList, QByteArray> row("dragged", "opened"); // empty: drop refused
        const QString other = QStringLiteral("other.zob"), model = QStringLiteral("model.JSON");
        row("project", {other}, "other.zob");
        row("model", {model}, "made.zob");
        row("two files", {other, model}, "");
        row("only moved", {other}, "");
        row("folder", {QStringLiteral(".")}, "");
        row("missing", {QStringLiteral("missing.zob")}, "");
        row("address", {QStringLiteral("https://example.org/other.zob")}, "");
        row("text", {}, "");
    }

    /// The file is dropped onto a pane that does not use files. The drop is a move, after which the
    /// file manager would delete the file.
    void drops()
    {
        QFETCH(const QStringList, dragged);
        QFETCH(const QByteArray, opened);
        const auto window = open("mine.zob");
        copy("other.zob");
        QFile::copy(QStringLiteral(MODELS "/slab.json"), path("model.JSON"));
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : dragged)
            urls << (name.startsWith(QLatin1String("https"))
                         ? QUrl(name)
                         : QUrl::fromLocalFile(m_folder->filePath(name)));
        urls.isEmpty() ? data.setText(path("other.zob")) : data.setUrls(urls);
        QWidget* target = find<QAbstractScrollArea>(*window, "ScriptText")->viewport();
        const bool isOnlyMoved = qstrcmp(QTest::currentDataTag(), "only moved") == 0;
        const Qt::DropActions actions =
            isOnlyMoved ? Qt::MoveAction : Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(target, &enter);
        QCOMPARE(enter.isAccepted(), !opened.isEmpty());
        if (opened.isEmpty())
            return;
        QDropEvent drop(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(target, &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        if (opened == "made.zob") // the user enters the name of the project for the model
            answerFileDialog(path(opened));
        QTRY_VERIFY(window->windowTitle().startsWith(QString::fromUtf8(opened)));
    }

    /// The process that creates the project is killed while it is writing.
    void cancelledMaking()
    {
        const QDir folder(m_folder->path());
        const auto written = [&folder] { return folder.entryList({QStringLiteral("*.new")}); };
        const auto slow = [&](const QString& path, const QString& model, const VkdGoOn& goOn) {
            workbench::makeProjectFile(path, model, [&](int) { return written().isEmpty(); });
            if (written().isEmpty())
                qFatal("killed too late");
            whenProgress([](QProgressDialog* box) { box->findChild<QAbstractButton*>()->click(); });
            QElapsedTimer clock;
            clock.start();
            while (goOn(50))
                if (clock.hasExpired(Patience))
                    qFatal("not cancelled");
            return QStringLiteral("cancelled");
        };
        MainWindow window(slow);
        window.show();
        answerFileDialog(path("new.zob"));
        trigger(window, "NewFromSample");
        QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Cancelled."));
        QCOMPARE(folder.entryList(QDir::Files), QStringList());
    }

    /// If a file on the command line cannot be opened, a usable window is still shown.
    void windowStateIsSaved()
    {
        QSize size;
        const auto work = [&] {
            MainWindow* window = shownWindow();
            QVERIFY(window->openProject(copy("saved.zob")));
            QTRY_COMPARE(recentFiles(*window), QStringList(path("saved.zob")));
            trigger(*window, "German");
            find<QDockWidget>(*window, "RecordDock")->hide();
            window->addDockWidget(Qt::LeftDockWidgetArea, find<QDockWidget>(*window, "ScriptDock"));
            window->resize(1300, 650);
            size = window->size();
        };
        bool isTold = false;
        whenModal([&](QWidget* box) {
            isTold = true;
            QTimer::singleShot(0, this, [&] {
                work();
                shownWindow()->close();
            });
            press(box, QMessageBox::Ok);
        });
        QCOMPARE(workbench::runWindow(path("missing.zob")), 0);
        QVERIFY(isTold);
        testsupport::setLanguage(testsupport::English);
        const auto look = [&] {
            const MainWindow* window = shownWindow();
            QCOMPARE(vkd_lib_getvalue(VKD_SETTING_LANGUAGE), 0);
            QVERIFY(find<QDockWidget>(*window, "RecordDock")->isHidden());
            QCOMPARE(window->dockWidgetArea(find<QDockWidget>(*window, "ScriptDock")),
                     Qt::LeftDockWidgetArea);
            QCOMPARE(window->size(), size);
            QCOMPARE(recentFiles(*window), QStringList(path("saved.zob")));
        };
        QTimer::singleShot(0, this, [&] {
            look();
            shownWindow()->close();
        });
        QCOMPARE(workbench::runWindow(QString()), 0);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_windowFiles)
#include "tst_windowFiles.moc"
