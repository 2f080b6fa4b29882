#include "ProjectTest.h"

#include <QDockWidget>
#include <QTableView>
#include <QTreeWidget>

using namespace windowtest;
using workbench::MainWindow;

class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }

    bool isPainted = false;
};

/// Tests which steps of program startup are performed immediately and which are postponed.
class tst_start : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void projectIsReadAfterThePainting_data()
    {
        const Columns<bool> row("isShown");
        row("shown: the window is not held up", true);
        row("hidden: nobody waits", false);
    }

    void projectIsReadAfterThePainting()
    {
        QFETCH(const bool, isShown);
        MainWindow window;
        window.setVisible(isShown);
        find<QDockWidget>(window, "RecordDock")->setFloating(isShown); // before the pane is created
        const auto groupCount = [&window] {
            return find<QTreeWidget>(window, "GroupList")->topLevelItemCount();
        };
        QVERIFY(window.openProject(copy("first.zob")));
        QCOMPARE(groupCount() == 0, isShown);
        QTRY_VERIFY(groupCount() > 0);
        QTRY_VERIFY(window.findChild<QTableView*>(QStringLiteral("Records")));
        const int groups = groupCount();
        // A second project immediately replaces the first project, whose file is closed.
        makeProject(path("second.zob"), QStringLiteral("slab"));
        QVERIFY(window.openProject(path("second.zob")));
        QVERIFY(groupCount() != groups);
    }

    /// The message about a damaged project appears after the window has been painted.
    void messageAppearsAfterThePainting()
    {
        writeFile(path("bad.zob"), "no project");
        MainWindow window;
        window.openAfterPainting(path("bad.zob"));
        PaintWatch watch;
        window.installEventFilter(&watch);
        bool isTold = false, wasPainted = false;
        whenModal([&](QWidget* box) {
            isTold = true;
            wasPainted = watch.isPainted;
            box->close();
        });
        window.show();
        QTRY_VERIFY(isTold);
        QVERIFY(wasPainted);
    }

    /// Settings are written only if they have changed, because writing waits for the disk and loses
    /// comments in the file.
    void settingsAreWrittenForNewFilesOnly()
    {
        const QString file = path("ini/plib/workbench.ini");
        MainWindow first;
        QVERIFY(!QFile::exists(file));
        QVERIFY(first.openProject(copy("project.zob")));
        QVERIFY(QFile::exists(file));
        writeFile(file, readFile(file) + "; by hand\n");
        const QByteArray before = readFile(file);
        MainWindow second;
        QVERIFY(second.openProject(path("project.zob")));
        QCOMPARE(readFile(file), before);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_start)
#include "tst_start.moc"
