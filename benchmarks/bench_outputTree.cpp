// The output tree with a thousand rows under each plot, compared with a plain Qt tree with the same
// content and with itself at other sizes.

#include "checkStates.h"
#include "RatioReporter.h"

#include <search/PlotSearch.h>
#include <tree/GraphicalOutputTreeWidget.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_QT_SignalBlocker.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>

namespace {

constexpr int RowsPerPlot = 1000;
constexpr int Small = 50000;
constexpr int Medium = 100000;
constexpr int Large = 300000;

/// Returns a catalogue in which each plot is offered on pages whose kind is greater than the plot's
/// index, so that the kind of a page equals its number of plots. By default, all rows are checked
/// in half of the plots.
QByteArray catalogue()
{
    QByteArray file;
    for (int i = 0; i < Large / RowsPerPlot; ++i) {
        for (int kind : {Small / RowsPerPlot, Medium / RowsPerPlot, Large / RowsPerPlot})
            file += QByteArray::number(i < kind ? kind : 0) + '|';
        const QByteArray number = QByteArray::number(100 + i); // identifiers have three characters
        file += "@TOP Results|@S" + QByteArray::number(10 + i / 10) + " Group " +
                QByteArray::number(i / 10) + "|@" + number + " Plot " + number + "| |0|last-l|" +
                QByteArray::number(i % 4) + "|1| |0|AUFL NUMM " + number + "|SUPP NUMB " + number +
                "\n";
    }
    return file;
}

/// The project and the settings that the trees need. They exist until the process ends.
class Surroundings
{
public:
    Surroundings()
    {
        QFile file(m_folder.filePath(QStringLiteral("graphicaloutput.data")));
        if (!file.open(QIODevice::WriteOnly) || file.write(catalogue()) < 0)
            qFatal("cannot write a catalogue");
        qputenv("VKD_SHARE", QFile::encodeName(m_folder.path()));
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
        m_document = VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("p.zob")));
        parameter = std::make_unique<VKD_H_PluginParameter>(m_document.get());
        for (int i = 1; i <= RowsPerPlot; ++i)
            rows.push_back({1, i, QStringLiteral("%1 : Load case %1").arg(i)});
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<VKD_H_ZOBDoc> m_document;

public:
    std::unique_ptr<VKD_H_PluginParameter> parameter;
    GraphicalOutputTreeWidget::Rows rows;
};

class Tree : public GraphicalOutputTreeWidget
{
public:
    explicit Tree(int count)
        : GraphicalOutputTreeWidget(nullptr, count / RowsPerPlot, surroundings().parameter.get(),
                                    "m_list")
    {
        setUsedNumbersAndNames(surroundings().rows);
        show();
        QApplication::processEvents();
        top()->child(0)->child(0)->setExpanded(true);
        if (top()->child(0)->child(0)->childCount() != RowsPerPlot)
            qFatal("the tree is not as big as it should be");
    }

    QTreeWidgetItem* top() const { return topLevelItem(0); }

private:
    static Surroundings& surroundings()
    {
        static Surroundings instance;
        return instance;
    }
};

void rebuild(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    for (auto _ : state) {
        tree.rebuild(true);
        QApplication::processEvents();
    }
}

/// The content of an item and its child items.
struct Content
{
    explicit Content(const QTreeWidgetItem* item)
        : text(item->text(0))
        , icon(item->icon(0))
        , state(item->checkState(0))
    {
        for (int i = 0; i < item->childCount(); ++i)
            children.emplace_back(item->child(i));
    }

    QString text;
    QIcon icon;
    Qt::CheckState state;
    std::vector<Content> children;
};

QTreeWidgetItem* newItem(const Content& content)
{
    auto item = new QTreeWidgetItem;
    item->setText(0, content.text);
    if (!content.icon.isNull())
        item->setIcon(0, content.icon);
    item->setCheckState(0, content.state);
    for (const Content& child : content.children)
        item->addChild(newItem(child));
    return item;
}

/// The measured time includes deleting the old items, as when a tree is rebuilt.
void fillBareTree(benchmark::State& state)
{
    const Content content(Tree(int(state.range(0))).top());
    QTreeWidget tree;
    tree.setHeaderHidden(true);
    tree.show();
    for (auto _ : state) {
        tree.clear();
        tree.addTopLevelItem(newItem(content));
        tree.expandToDepth(1);
        QApplication::processEvents();
    }
}

/// Presses the space key, which has the same effect as a click. The measured time includes painting
/// the changes.
void clickOnTheCaption(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    tree.setCurrentItem(tree.top());
    const QTreeWidgetItem* row = tree.top()->child(0)->child(0)->child(1);
    for (auto _ : state) {
        const Qt::CheckState expected = other(tree.top()->checkState(0));
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
        QCoreApplication::sendEvent(&tree, &space);
        QApplication::processEvents();
        if (row->checkState(0) != expected)
            state.SkipWithError("the state was not carried down");
    }
}

void bareWalk(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    const VKD_QT_SignalBlocker silence(tree.model());
    for (auto _ : state)
        setAll(tree.top(), other(tree.top()->checkState(0)));
}

/// Returns a choice that contains every second row, starting with row `first`.
QString choice(Tree& tree, int first)
{
    tree.top()->setCheckState(0, Qt::Unchecked);
    for (int i = 0; i < tree.top()->childCount(); ++i)
        for (int j = 0; j < tree.top()->child(i)->childCount(); ++j)
            for (int row = first; row < RowsPerPlot; row += 2)
                tree.top()->child(i)->child(j)->child(row)->setCheckState(0, Qt::Checked);
    return tree.selectionText();
}

/// Alternately applies two choices that differ in every row.
void applySelection(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    const QString choices[] = {choice(tree, 0), choice(tree, 1)};
    int next = 0;
    for (auto _ : state) {
        tree.applySelection(choices[next]);
        QApplication::processEvents();
        next = 1 - next;
    }
    if (tree.selectionText() != choices[1 - next])
        state.SkipWithError("the choice was not applied");
}

/// Types words that are found in captions and in rows, letter by letter and again from the start.
void typeALetter(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    plib::PlotSearch search(&tree);
    const QString words = QStringLiteral("12 group 3 case 7");
    int length = 0;
    for (auto _ : state) {
        length = length % words.size() + 1;
        search.find(words.left(length), false);
        QApplication::processEvents();
        if (search.count() == 0)
            state.SkipWithError("nothing was found");
    }
}

BENCHMARK(rebuild)->Arg(Small)->Arg(Medium)->Arg(Large);
BENCHMARK(fillBareTree)->Arg(Medium);
BENCHMARK(clickOnTheCaption)->Arg(Medium);
BENCHMARK(bareWalk)->Arg(Medium);
BENCHMARK(applySelection)->Arg(Medium);
BENCHMARK(typeALetter)->Arg(Large);

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runBenchmarks(
        argc, argv,
        {{"rebuild/100000", "fillBareTree/100000", 0.85,
          "adds items with the same texts, icons and states, which are ready"},
         {"rebuild/300000", "rebuild/50000", 1.4, "does the same, each item", Figure::TimePerItem},
         {"clickOnTheCaption/100000", "bareWalk/100000", 1.5,
          "sets each item's state without signals"},
         {"applySelection/100000", "rebuild/100000", 0.45,
          "rebuilds the tree that the selection is applied to"},
         {"typeALetter/300000", "rebuild/300000", 0.2, "rebuilds the tree that is searched"}});
}
