#include "ProjectTest.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTabWidget>
#include <QTreeWidget>

using namespace windowtest;

namespace {
/// An output dialog whose plots depend on the load case or on the contents chosen in another tab.
struct Offers
{
    Offers(QDialog* outputDialog, bool dependsOnContent)
        : dialog(outputDialog)
        , plots(dialog->findChild<QTreeWidget*>())
        , tabs(dialog->findChild<QTabWidget*>())
        , loadCase(find<QTableWidget>(*dialog, "LoadCases")->item(0, 1))
        , isContent(dependsOnContent)
    {
        hideTree();
    }

    void hideTree() const { tabs->setCurrentIndex(isContent ? 2 : 1); }
    void trigger(const char* action) const { find<QAction>(*dialog, action)->trigger(); }
    bool isChanged() const
    {
        return loadCase->checkState() != Qt::Checked ||
               !find<QAbstractButton>(*dialog, "ContentGroup_0")->isChecked();
    }
    /// Chooses the other load cases or contents, or the former ones.
    void change(bool toOther) const
    {
        if (isContent)
            find<QAbstractButton>(*dialog, toOther ? "ContentGroup_1" : "ContentGroup_0")->click();
        else
            loadCase->setCheckState(toOther ? Qt::Unchecked : Qt::Checked);
    }
    void arrangeBranches() const
    {
        tabs->setCurrentIndex(0);
        plots->topLevelItem(1)->setExpanded(false);
        plots->topLevelItem(1)->child(0)->child(0)->setExpanded(true);
        plots->setCurrentItem(plots->topLevelItem(2)->child(1));
        plots->scrollToItem(plots->topLevelItem(2), QTreeWidget::PositionAtTop);
        hideTree();
    }
    bool areBranchesKept() const
    {
        tabs->setCurrentIndex(0);
        const QTreeWidgetItem* caption = plots->topLevelItem(1);
        const bool isKept = !caption->isExpanded() && caption->child(0)->child(0)->isExpanded() &&
                            plots->itemAt(0, 0) == plots->topLevelItem(2) &&
                            plots->currentItem() == plots->topLevelItem(2)->child(1);
        hideTree();
        return isKept;
    }

    QDialog* dialog;
    QTreeWidget* plots;
    QTabWidget* tabs;
    QTableWidgetItem* loadCase;
    bool isContent;
};
} // namespace

/// Tests the output dialog while the offered plots change, and its actions in the window.
class tst_plotOffers : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void choiceOutlastsOffers_data()
    {
        const Columns<bool, bool, QString> row("isContent", "isChosen", "pattern");
        row("load case, chosen", false, true, R"((?s)\[ \] Overview\n.*\[x\] 3 : )");
        row("load case, proposed", false, false, R"(\[x\] 2 : )");
        row("content, chosen", true, true, R"(\[ \] Overview\n)");
        row("content, proposed", true, false, R"(\[x\] Bricks in)");
    }

    /// In a new project, the tree first offers other plots and afterwards the same plots as before.
    void choiceOutlastsOffers()
    {
        QFETCH(const bool, isContent);
        QFETCH(const bool, isChosen);
        QFETCH(const QString, pattern);
        const auto window = open("offers.zob");
        const Offers offers(openOutput(*window), isContent);
        QTreeWidget* plots = offers.plots;
        QTreeWidgetItem* loads = plots->topLevelItem(1)->child(0)->child(0);
        QVERIFY(loads->child(0)->checkState(0) == Qt::Checked && loads->childCount() > 2);
        if (isChosen) {
            plots->topLevelItem(0)->child(0)->setCheckState(0, Qt::Unchecked);
            loads->child(2)->setCheckState(0, Qt::Checked);
        }
        offers.arrangeBranches();
        const QString before = treeText(plots);
        QSignalSpy filled(plots->model(), &QAbstractItemModel::modelReset);
        offers.change(true);
        QCOMPARE(filled.size(), 1);
        QTRY_VERIFY2(treeText(plots).contains(QRegularExpression(pattern)),
                     qPrintable(treeText(plots)));
        QVERIFY(offers.areBranchesKept());
        const QString offered = treeText(plots);
        offers.change(false);
        QCOMPARE(filled.size(), 2);
        QTRY_COMPARE(treeText(plots), before); // once the captions are in English
        QVERIFY(offers.areBranchesKept());
        for (const QString& text : {offered, before}) {
            offers.trigger("undo");
            QCOMPARE(treeText(plots), text);
        }
        QVERIFY(!offers.isChanged());
        QVERIFY(offers.areBranchesKept());
    }

    void searchOutlastsOffers_data()
    {
        const Columns<bool, QString> row("isContent", "redo");
        row("load case", false, "&Redo Leave Out Load Case 1");
        row("content", true, "&Redo Contents");
    }

    void searchOutlastsOffers()
    {
        QFETCH(const bool, isContent);
        const auto window = open("offers.zob");
        QDialog* dialog = openOutput(*window);
        const Offers offers(dialog, isContent);
        offers.trigger("findPlots"); // while another tab is shown
        QCOMPARE(offers.tabs->currentIndex(), 0);
        find<QLineEdit>(*dialog, "searchWords")->setText(QStringLiteral("displ"));
        offers.trigger("findNextPlot");
        const QString hit = find<QLabel>(*dialog, "searchCount")->text();
        offers.change(true);
        QVERIFY(offers.plots->topLevelItem(0)->isHidden());
        offers.change(false);
        QCOMPARE(find<QLabel>(*dialog, "searchCount")->text(), hit);
        offers.trigger("undo");
        offers.trigger("undo");
        QCOMPARE(find<QLabel>(*dialog, "searchCount")->text(), hit);
        QTEST(find<QAction>(*dialog, "redo")->text(), "redo");
    }

    void proposalAfterUndo_data() { searchOutlastsOffers_data(); }

    /// After the user's choice is undone, the proposal applies again.
    void proposalAfterUndo()
    {
        QFETCH(const bool, isContent);
        const auto window = open("offers.zob");
        const Offers offers(openOutput(*window), isContent);
        const QString before = treeText(offers.plots);
        offers.change(true);
        const QString offered = treeText(offers.plots);
        QVERIFY(offered != before);
        offers.trigger("undo");
        offers.plots->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        offers.change(true);
        offers.trigger("undo");
        offers.trigger("undo");
        offers.change(true);
        QCOMPARE(treeText(offers.plots), offered);
    }

    /// The Edit menu and the pane with the script have the actions of the open dialog.
    void actionsOfTheDialog()
    {
        const auto window = open("actions.zob");
        QDialog* dialog = openOutput(*window);
        QVERIFY(!dialog->hasHeightForWidth()); // otherwise, the page would not fit
        auto undo = find<QAction>(*dialog, "undo");
        const auto edit = find<QMenu>(*window, "EditMenu");
        QVERIFY(edit->menuAction()->isEnabled() && edit->actions().contains(undo));
        QVERIFY(find<QWidget>(*window, "ScriptDock")->actions().contains(undo));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_plotOffers)
#include "tst_plotOffers.moc"
