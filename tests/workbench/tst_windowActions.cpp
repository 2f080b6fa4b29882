#include "ProjectTest.h"
#include "window/main/WindowActions.h"
#include "window/output/OutputDialog.h"

#include <VKD_H_ZOBDoc.h>

#include <QAbstractButton>
#include <QDockWidget>
#include <QPointer>
#include <QSet>
#include <QTableWidget>
#include <QTreeWidget>

using namespace windowtest;
using workbench::MainWindow;

namespace {
QList<QAction*> windowActions(const MainWindow& window)
{
    QList<QAction*> actions;
    for (QAction* action : window.findChildren<QAction*>())
        if (qobject_cast<workbench::WindowActions*>(action->parent()))
            actions << action;
    return actions;
}

/// Returns guarded pointers, because one object may destroy other objects.
template <class Object>
QList<QPointer<Object>> pointers(const QList<Object*>& objects)
{
    return {objects.begin(), objects.end()};
}
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
} // namespace

/// Tests the steps of program startup, and the actions and buttons of the window with and without
/// a project.
class tst_windowActions : public ProjectTest
{
    Q_OBJECT

    void openEmpty(MainWindow& window) const
    {
        VKD_H_ZOBDoc::create(path("empty.zob"));
        QVERIFY(window.openProject(path("empty.zob")));
        QTRY_VERIFY(!script(window).isEmpty());
    }

private Q_SLOTS:
    void everyAction_data()
    {
        const Columns<QString> row("enabled"); // names of the enabled actions
        const QString always = QStringLiteral("About DesignHelp English German Help NewFromFile "
                                              "NewFromSample Open OutputHelp Quit TextOutputHelp");
        const QString script =
            QStringLiteral(" CopyScriptAction ExportSheetsAction SaveScriptAction View");
        row("no project", always);
        row("empty project", // even this project has a script
            always + script +
                QLatin1String(" CloseProject Design Output Reload Save SaveAs SheetPreviewAction "
                              "TextOutput"));
    }

    /// All actions and buttons work, and the window remains usable.
    void everyAction()
    {
        MainWindow window;
        window.show();
        if (qstrcmp(QTest::currentDataTag(), "no project") != 0)
            openEmpty(window);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QSet<QString> names;
        for (const QAction* action : windowActions(window))
            if (action->isEnabled())
                names << action->objectName();
        QStringList sorted = names.values();
        sorted.sort();
        QFETCH(const QString, enabled);
        QStringList expected = enabled.split(QLatin1Char(' '));
        expected.sort();
        QCOMPARE(sorted.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [] {
            for (QWidget* open :
                 {QApplication::activePopupWidget(), QApplication::activeModalWidget()})
                if (open)
                    open->close();
        });
        closer.start(5);
        for (const auto& button : pointers(window.findChildren<QAbstractButton*>()))
            if (button && button->isVisible() && button->isEnabled())
                button->click();
        for (const auto& action : pointers(windowActions(window)))
            if (action && action->isEnabled() && action->objectName() != QLatin1String("Quit"))
                action->trigger();
        QTest::mouseClick(find<QWidget>(window, "AnimatorView"), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (auto output = window.findChild<workbench::OutputDialog*>())
            output->accept(); // stores the outputs that the buttons have added
        QVERIFY(window.close());
        for (const auto& widget : pointers(QApplication::topLevelWidgets()))
            if (widget)
                widget->close(); // the help window
    }

    /// The shortcuts do not change, because users know them from the manual.
    void shortcuts()
    {
        const MainWindow window;
        QStringList keys;
        for (const QAction* action : windowActions(window))
            for (const QKeySequence& key : action->shortcuts())
                keys << action->objectName() + QLatin1Char(' ') +
                            key.toString(QKeySequence::PortableText);
        keys.sort();
        QCOMPARE(keys.join(QLatin1Char('|')),
                 QStringLiteral("CloseProject Ctrl+W|CopyScriptAction Ctrl+Shift+C|Design Ctrl+D|"
                                "ExportSheetsAction Ctrl+Shift+E|Help F1|NewFromFile Ctrl+N|"
                                "Open Ctrl+O|Output Ctrl+G|Quit Ctrl+Q|Reload F5|Save Ctrl+S|"
                                "SaveAs Ctrl+Shift+S|SaveScriptAction Ctrl+E|"
                                "SheetPreviewAction Ctrl+Shift+P|TextOutput Ctrl+T|View Ctrl+0|"
                                "View Ctrl+1|View Ctrl+2|View Ctrl+3|View Ctrl+4"));
    }

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
        QTRY_VERIFY(window.findChild<QWidget*>(QStringLiteral("StartPage")));
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

PLIB_WIDGET_TEST_MAIN(tst_windowActions)
#include "tst_windowActions.moc"
