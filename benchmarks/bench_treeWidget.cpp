// Automatic updates of check states in a tree of 100 plots with 1000 rows each.

#include "checkStates.h"
#include "RatioReporter.h"

#include <VKD_QT_SignalBlocker.h>
#include <VKD_QT_TreeWidget.h>

#include <QApplication>
#include <QKeyEvent>

namespace {

QTreeWidgetItem* add(QTreeWidgetItem* parent)
{
    auto item = new QTreeWidgetItem(parent, {QStringLiteral("row")});
    item->setCheckState(0, Qt::Unchecked);
    return item;
}

/// A tree with one caption and plots with `rowsOfAPlot` rows each. All items are expanded.
class Tree
{
public:
    explicit Tree(int rows, int rowsOfAPlot = 1000)
        : top(add(widget.invisibleRootItem()))
    {
        for (int plot = 0; plot < rows / rowsOfAPlot; ++plot)
            for (int row = 0; row < rowsOfAPlot; ++row)
                add(row ? top->child(plot) : add(top));
        widget.expandAll();
        widget.setCurrentItem(top);
        widget.setAutomaticCheckStateUpdate(true);
        widget.show();
        QApplication::processEvents();
    }

    VKD_QT_TreeWidget widget;
    QTreeWidgetItem* top;
};

/// Presses the space key, which has the same effect as a click. The measured time includes painting
/// the changes.
void clickOnTheCaption(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    Qt::CheckState expected = Qt::Unchecked;
    for (auto _ : state) {
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        QCoreApplication::sendEvent(&tree.widget, &space);
        QApplication::processEvents();
        expected = other(expected);
        if (tree.top->child(0)->child(1)->checkState(0) != expected)
            state.SkipWithError("the state was not carried down");
    }
}

void bareWalk(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    const VKD_QT_SignalBlocker silence(tree.widget.model());
    for (auto _ : state)
        setAll(tree.top, other(tree.top->checkState(0)));
}

/// Checks the rows of one plot one by one, from the first to the last. For each changed item, Qt
/// itself searches the siblings, so only the ratio to the peer can be independent of the size.
void rowByRow(benchmark::State& state, bool isAutomatic)
{
    const int rows = int(state.range(0));
    Tree tree(rows, rows);
    tree.widget.setAutomaticCheckStateUpdate(isAutomatic);
    QTreeWidgetItem* plot = tree.top->child(0);
    for (auto _ : state) {
        const Qt::CheckState next = other(plot->child(0)->checkState(0));
        for (int row = 0; row < rows; ++row)
            plot->child(row)->setCheckState(0, next);
        if (isAutomatic && tree.top->checkState(0) != next)
            state.SkipWithError("the caption did not follow");
    }
}

BENCHMARK(clickOnTheCaption)->Arg(1000)->Arg(100000);
BENCHMARK(bareWalk)->Arg(100000);
void followed(benchmark::State& state)
{
    rowByRow(state, true);
}
void alone(benchmark::State& state)
{
    rowByRow(state, false);
}
BENCHMARK(followed)->Arg(1000)->Arg(10000);
BENCHMARK(alone)->Arg(1000)->Arg(10000);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const char one[] = "checks the same rows while captions do not follow";
    return runBenchmarks(argc, argv,
                         {{"clickOnTheCaption/100000", "bareWalk/100000", 1.5,
                           "sets each item's state without signals"},
                          {"followed/1000", "alone/1000", 1.5, one},
                          {"followed/10000", "alone/10000", 1.5, one}});
}
