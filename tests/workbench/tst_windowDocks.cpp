#include "ProjectTest.h"
#include "window/output/OutputDock.h"

#include <QDockWidget>
#include <QScrollArea>
#include <QScrollBar>

using namespace windowtest;

/// Tests the sizes and the visibility of docks.
class tst_windowDocks : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Resizes in many small steps, as with the mouse.
    void docksGrowWithTheWindow()
    {
        const auto window = open("docks.zob");
        window->resize(1200, 800);
        const auto script = find<QWidget>(*window, "ScriptDock");
        const QWidget* rows = openDesign(*window);
        QApplication::processEvents(); // lays out the docks
        const QSize before(script->width(), rows->height());
        const auto drag = [&](int from, int to) {
            for (int step = from; step != to; step += from < to ? 1 : -1)
                window->resize(1200 + 2 * step, 800 + step);
            window->resize(1200 + 2 * to, 800 + to);
        };
        drag(0, 400);
        QVERIFY2(script->width() > 1.5 * before.width(), QByteArray::number(script->width()));
        QVERIFY2(rows->height() > 1.3 * before.height(), QByteArray::number(rows->height()));
        drag(400, -150); // too small for the saved shares
        drag(-150, 0);
        QCOMPARE(QSize(script->width(), rows->height()), before);
    }

    /// The German page, script and sheets fit into a maximised window on a screen of 1280 x 720.
    /// The design dock is hidden while the page needs its height.
    void smallScreen()
    {
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPixelSize(13); // as on most desktops
        QApplication::setFont(font);
        const auto window = open("small.zob");
        trigger(*window, "German");
        window->resize(1264, 680);
        const auto dock = find<QDockWidget>(*window, "OutputDock");
        const QWidget* design = openDesign(*window);
        for (const char* pane : {"ScriptDock", "SheetDock", "RecordDock"}) {
            find<QDockWidget>(*window, pane)->raise();
            openOutput(*window);
            QTRY_VERIFY(dock->isVisible() && !design->isVisible());
            const auto page = dock->findChild<QScrollArea*>();
            QTRY_COMPARE(page->horizontalScrollBar()->maximum(), 0);
            QTRY_COMPARE(page->verticalScrollBar()->maximum(), 0);
            find<QDockWidget>(*window, "GroupDock")->raise();
            QTRY_VERIFY(design->isVisible());
        }
        trigger(*window, "CloseProject");
        QVERIFY(!design->isVisible());
        QApplication::setFont(before);
    }

    /// In a narrow window, the output page takes the place of the model.
    void pageBesideTheScript()
    {
        const auto window = open("narrow.zob");
        auto dock = find<workbench::OutputDock>(*window, "OutputDock");
        const auto groups = find<QDockWidget>(*window, "GroupDock");
        const QWidget* page = openOutput(*window);
        dock->hide();
        const QWidget* script = find<QWidget>(*window, "ScriptDock");
        const int letter = window->fontMetrics().averageCharWidth();
        const int least = dock->widthOfPage() + script->minimumSizeHint().width();
        window->resize(least + 10 * letter, 768);
        const int width = groups->width();
        const int scriptWidth = script->width();
        openOutput(*window);
        const auto view = find<QWidget>(*window, "AnimatorView");
        QTRY_VERIFY(!view->isVisible());
        for (const QWidget* shown : {page, script})
            QCOMPARE(shown->visibleRegion().boundingRect().width(), shown->width());
        openDesign(*window); // highlights groups in the model
        QTRY_VERIFY(view->isVisible());
        openOutput(*window);
        QTRY_VERIFY(!view->isVisible());
        const auto leaveRoom = [&](int letters) { // for the model
            window->resize(dock->widthOfPage() + scriptWidth + letters * letter, 768);
            return view->isVisible();
        };
        QVERIFY(!leaveRoom(39));
        QVERIFY(leaveRoom(40) && !page->visibleRegion().isEmpty());
        for (const bool isFloating : {true, false})
            dock->setFloating(isFloating);
        dock->toggleViewAction()->trigger();
        QVERIFY(dock->isHidden());
        QTRY_COMPARE(groups->width(), width);
        openOutput(*window);
        trigger(*window, "CloseProject");
        QVERIFY(window->openProject(path("narrow.zob"))); // restores the docks one by one
        QVERIFY(dock->isVisible());
    }
};

PLIB_WIDGET_TEST_MAIN(tst_windowDocks)
#include "tst_windowDocks.moc"
