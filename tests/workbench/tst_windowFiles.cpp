#include "ProjectTest.h"

#include <runWindow.h>
#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QDockWidget>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

using namespace windowtest;
using testsupport::whenModal;
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

/// The window that is shown by runWindow().
MainWindow* shownWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto window = qobject_cast<MainWindow*>(widget))
            return window;
    qFatal("no window");
    return nullptr;
}
} // namespace

class tst_windowFiles : public windowtest::ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void saveAs_data();
    void saveAs();
    void saveAsFails_data();
    void saveAsFails();
    void recent();
    void drops_data();
    void drops();
    void keptBetweenStarts();
};

void tst_windowFiles::saveAs_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QByteArray>("opened");
    QTest::newRow("new file") << QByteArray("new.zob") << QByteArray("new.zob");
    QTest::newRow("no suffix") << QByteArray("plain") << QByteArray("plain.zob");
    QTest::newRow("itself") << QByteArray("mine.zob") << QByteArray("mine.zob");
    QTest::newRow("itself by a link") << QByteArray("link.zob") << QByteArray("mine.zob");
    QTest::newRow("another project") << QByteArray("theirs.zob") << QByteArray("theirs.zob");
    QTest::newRow("no project") << QByteArray("noise.zob") << QByteArray("noise.zob");
    QTest::newRow("beside a journal") << QByteArray("crashed.zob") << QByteArray("crashed.zob");
}

/// The choice goes along, the dialog stays open, and what another program has not stored yet is not
/// in the copy.
void tst_windowFiles::saveAs()
{
    QFETCH(const QByteArray, place);
    QFETCH(const QByteArray, opened);
    const auto window = open("mine.zob");
    QFile::link(path("mine.zob"), path("link.zob"));
    testsupport::writeFile(path("theirs.zob"), m_building);
    testsupport::writeFile(path("noise.zob"), "noise");
    testsupport::writeFile(path("crashed.zob-journal"), m_building);
    changeChoice(*window);
    const QString chosen = script(*window);
    const bool isCopied = opened != "mine.zob";
    std::unique_ptr<OtherProgram> other;
    if (isCopied)
        other = std::make_unique<OtherProgram>(path("mine.zob"), OtherProgram::Changing);
    if (QFileInfo::exists(path(place)))
        whenModal([&](QWidget* dialog) {
            whenModal([](QWidget* box) { press(box, QMessageBox::Yes); });
            auto name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(path(place));
            QTest::keyClick(name, Qt::Key_Return);
        });
    else
        answerFileDialog(path(place));
    trigger(*window, "SaveAs");
    QVERIFY(window->windowTitle().startsWith(QString::fromUtf8(opened)));
    QVERIFY(find<QDialog>(*window, "OutputDialog")->isVisible());
    QVERIFY(!window->isWindowModified());
    QTRY_COMPARE(script(*window), chosen);
    MainWindow again(makeProject);
    QVERIFY(again.openProject(path(opened)));
    QTRY_COMPARE(script(again), chosen);
    other.reset();
    QCOMPARE(testsupport::readFile(path("mine.zob")) == m_building, isCopied);
    int index = -1, length = 0;
    QCOMPARE(vkd_zob_open(path(opened).toUtf8().constData(), &index), VKD_ZOB_OK);
    QCOMPARE(vkd_zob_get(index, 9000, 1, nullptr, &length, 0), VKD_ZOB_NO_KEY);
    QCOMPARE(vkd_zob_close(index), VKD_ZOB_OK);
}

void tst_windowFiles::saveAsFails_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QString>("reason");
    const QString isProtected = QStringLiteral("It or the folder it lies in is write-protected.");
    const QString isWritten = QStringLiteral("Another program is writing to it.");
    QTest::newRow("no folder") << QByteArray("no/new.zob")
                               << QStringLiteral("Its folder is not there.");
    QTest::newRow("protected folder") << QByteArray("protected/new.zob") << isProtected;
    QTest::newRow("protected file") << QByteArray("protected.zob") << isProtected;
    QTest::newRow("in use") << QByteArray("used.zob") << isWritten;
    QTest::newRow("source in use") << QByteArray("new.zob") << isWritten;
    QTest::newRow("disk full") << QByteArray("full.zob")
                               << QStringLiteral("There is no room left on the disk.");
}

void tst_windowFiles::saveAsFails()
{
    QFETCH(const QByteArray, place);
    QFETCH(const QString, reason);
    const auto window = open("mine.zob");
    QTRY_VERIFY(!script(*window).isEmpty());
    QDir().mkdir(path("protected"));
    QFile::setPermissions(path("protected"), QFile::ReadOwner | QFile::ExeOwner);
    for (const char* name : {"protected.zob", "used.zob"})
        testsupport::writeFile(path(name), m_building);
    QFile::setPermissions(path("protected.zob"), QFile::ReadOwner);
    const bool isSourceUsed = place == "new.zob";
    const OtherProgram other(path(isSourceUsed ? "mine.zob" : "used.zob"),
                             isSourceUsed ? OtherProgram::Storing : OtherProgram::Taking);
    const bool exists = QFileInfo::exists(path(place));
    const QStringList before = QDir(m_folder->path()).entryList();
    QStringList messages;
    const Obstacle obstacle(QTest::currentDataTag(), path("mine.zob"));
    whenModal([&](QWidget* dialog) {
        if (exists)
            whenModal([&](QWidget* box) {
                readMessage(messages);
                press(box, QMessageBox::Yes);
            });
        else
            readMessage(messages);
        auto name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(path(place));
        QTest::keyClick(name, Qt::Key_Return);
    });
    trigger(*window, "SaveAs");
    QCOMPARE(
        messages.join(QLatin1Char('|')),
        QStringLiteral("The project cannot be saved in the file %1.\n%2").arg(path(place), reason));
    QVERIFY(window->windowTitle().startsWith(QLatin1String("mine.zob")));
    QCOMPARE(QDir(m_folder->path()).entryList(), before);
    QFile::setPermissions(path("protected"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void tst_windowFiles::recent()
{
    QStringList expected;
    const auto window = open("0.zob");
    for (const char* name :
         {"0.zob", "1.zob", "2.zob", "3.zob", "4.zob", "5.zob", "6.zob", "7.zob", "8.zob"}) {
        testsupport::writeFile(path(name), m_building);
        QVERIFY(window->openProject(path(name)));
        expected.prepend(path(name));
    }
    expected.removeLast(); // eight are kept
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
    QCOMPARE(recentFiles(MainWindow(makeProject)), expected);
}

void tst_windowFiles::drops_data()
{
    QTest::addColumn<QStringList>("dragged"); // names of files, or what else it is
    QTest::addColumn<bool>("isTaken");
    const auto row = [](const char* name, const QStringList& dragged, bool isTaken) {
        QTest::newRow(name) << dragged << isTaken;
    };
    row("project", {QStringLiteral("other.zob")}, true);
    row("model", {QStringLiteral("model.JSON")}, true);
    row("two files", {QStringLiteral("other.zob"), QStringLiteral("model.JSON")}, false);
    row("only moved", {QStringLiteral("other.zob")}, false);
    row("folder", {QStringLiteral(".")}, false);
    row("missing", {QStringLiteral("missing.zob")}, false);
    row("address", {QStringLiteral("https://example.org/other.zob")}, false);
    row("text", {}, false);
}

/// On a pane that has no use for files, and moved by the file manager, which would delete it.
void tst_windowFiles::drops()
{
    QFETCH(const QStringList, dragged);
    const bool isOnlyMoved = qstrcmp(QTest::currentDataTag(), "only moved") == 0;
    QFETCH(const bool, isTaken);
    const auto window = open("mine.zob");
    testsupport::writeFile(path("other.zob"), m_building);
    QFile::copy(QStringLiteral(MODELS "/slab.json"), path("model.JSON"));
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& name : dragged)
        urls << (name.startsWith(QLatin1String("https"))
                     ? QUrl(name)
                     : QUrl::fromLocalFile(m_folder->filePath(name)));
    urls.isEmpty() ? data.setText(path("other.zob")) : data.setUrls(urls);
    QWidget* target = find<QPlainTextEdit>(*window, "ScriptText")->viewport();
    const Qt::DropActions actions = isOnlyMoved ? Qt::MoveAction : Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(target, &enter);
    QCOMPARE(enter.isAccepted(), isTaken);
    if (!isTaken)
        return;
    QDropEvent drop(QPoint(5, 5), actions, &data, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    const bool isModel = dragged[0].endsWith(QLatin1String("JSON"));
    if (isModel) // asks for the project's name
        answerFileDialog(path("made.zob"));
    QTRY_VERIFY(window->windowTitle().startsWith(isModel ? QLatin1String("made.zob")
                                                         : QLatin1String("other.zob")));
}

/// Also what is named on the command line and cannot be opened leaves a window to work with.
void tst_windowFiles::keptBetweenStarts()
{
    testsupport::writeFile(path("kept.zob"), m_building);
    QStringList messages;
    QSize size;
    const auto work = [&] {
        MainWindow* window = shownWindow();
        QVERIFY(window->openProject(path("kept.zob")));
        QTRY_COMPARE(recentFiles(*window), QStringList(path("kept.zob")));
        trigger(*window, "German");
        find<QDockWidget>(*window, "RecordDock")->hide();
        window->addDockWidget(Qt::LeftDockWidgetArea, find<QDockWidget>(*window, "ScriptDock"));
        window->resize(1300, 650);
        size = window->size();
    };
    whenModal([&](QWidget* box) {
        messages << qobject_cast<QMessageBox*>(box)->text();
        QTimer::singleShot(0, this, [&] {
            work();
            shownWindow()->close();
        });
        press(box, QMessageBox::Ok);
    });
    QCOMPARE(workbench::runWindow(path("missing.zob"), makeProject), 0);
    QCOMPARE(messages.size(), 1);
    setLanguage(1);
    const auto look = [&] {
        const MainWindow* window = shownWindow();
        QCOMPARE(vkd_lib_getvalue(VKD_SETTING_LANGUAGE), 0);
        QVERIFY(find<QDockWidget>(*window, "RecordDock")->isHidden());
        QCOMPARE(window->dockWidgetArea(find<QDockWidget>(*window, "ScriptDock")),
                 Qt::LeftDockWidgetArea);
        QCOMPARE(window->size(), size);
        QCOMPARE(recentFiles(*window), QStringList(path("kept.zob")));
    };
    QTimer::singleShot(0, this, [&] {
        look();
        shownWindow()->close();
    });
    QCOMPARE(workbench::runWindow(QString(), makeProject), 0);
}

PLIB_WIDGET_TEST_MAIN(tst_windowFiles)
#include "tst_windowFiles.moc"
