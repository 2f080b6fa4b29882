// The steps from a catalogue to a script. Each step is compared with the minimum work that any
// program would have to do, and with itself at other sizes.

#include "RatioReporter.h"

#include <catalogue/CatalogueParser.h>
#include <script/scriptLines.h>
#include <tree/checkStates.h>
#include <tree/OutputNode.h>
#include <tree/selectionText.h>
#include <tree/TreeBuilder.h>

#include <QTemporaryFile>

namespace {

constexpr int RowsPerPlot = 1000;

QByteArray catalogueOf(int lines)
{
    QByteArray file;
    for (int i = 0; i < lines; ++i) {
        const QByteArray number = QByteArray::number(i);
        const QByteArray identifier = QByteArray::number(i, 36).rightJustified(3, '0').right(3);
        file += "1   |222 |0  |&27Q Reaction forces  |@S" + QByteArray::number(i / 50 % 90 + 10) +
                " Supports |@" + identifier + " Plot " + number +
                "  |Quad|0|last-l|1|1| |0|AUFL REAK RICH Z SCHH $(SCHR) NUMM " + number +
                "|SUPP REAC DIRE Z SCHH $(SCHR) NUMB " + number + "\n";
    }
    return file;
}

/// A temporary catalogue file; the product reads the catalogue from a file, too.
class CatalogueFile
{
public:
    explicit CatalogueFile(int lines)
    {
        if (!m_file.open() || m_file.write(catalogueOf(lines)) < 0 || !m_file.flush())
            qFatal("cannot write a catalogue");
    }
    QIODevice& fromStart()
    {
        m_file.seek(0);
        return m_file;
    }

private:
    QTemporaryFile m_file;
};

void parseCatalogue(benchmark::State& state)
{
    CatalogueFile file(int(state.range(0)));
    for (auto _ : state) {
        std::vector<plib::GraphicalOutputRecord> records;
        plib::parseCatalogue(file.fromStart(), records);
        benchmark::DoNotOptimize(records.size());
    }
}

/// Splits the same file and trims the columns with Qt's functions, without using the results.
void splitCatalogue(benchmark::State& state)
{
    CatalogueFile file(int(state.range(0)));
    for (auto _ : state) {
        QIODevice& device = file.fromStart();
        char line[1024];
        int size = 0;
        for (qint64 length; (length = device.readLine(line, sizeof line)) > 0;) {
            const QString text = QString::fromUtf8(line, int(length));
            const QStringList parts = text.split(QLatin1Char('|'), Qt::SkipEmptyParts);
            for (const QString& part : parts)
                size += part.trimmed().size();
        }
        benchmark::DoNotOptimize(size);
    }
}

/// A tree of plots with a thousand rows each.
class Tree
{
public:
    explicit Tree(int rows)
    {
        CatalogueFile file(rows / RowsPerPlot);
        plib::parseCatalogue(file.fromStart(), m_records);
        for (int i = 1; i <= RowsPerPlot; ++i)
            m_rows.push_back({1, i, QStringLiteral("%1 : Load case %1").arg(i)});
        rebuild();
    }

    void rebuild()
    {
        root = std::make_unique<plib::OutputNode>();
        plib::OutputNodeOperations operations(root.get());
        plib::TreeBuilder<plib::OutputNode, plib::OutputNodeOperations> builder(root.get(), m_rows,
                                                                                operations);
        for (const auto& record : m_records)
            builder.add(record);
        builder.finish();
    }

    void checkAll() { check(root.get()); }

    std::unique_ptr<plib::OutputNode> root;

private:
    static void check(plib::OutputNode* node)
    {
        node->setCheckState(0, Qt::Checked);
        for (int i = 0; i < node->childCount(); ++i)
            check(node->child(i));
    }

    std::vector<plib::GraphicalOutputRecord> m_records;
    std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation> m_rows;
};

void rebuildTree(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    for (auto _ : state)
        tree.rebuild();
}

/// Applies a selection that differs from plot to plot and lists half of the rows by number.
void applySelection(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    const plib::OutputNode* top = tree.root->child(0);
    for (int i = 0; i < top->childCount(); ++i)
        for (int j = 0; j < top->child(i)->childCount(); ++j)
            for (int row = 0; row < RowsPerPlot; row += 2)
                top->child(i)->child(j)->child(row)->setCheckState(0, Qt::Checked);
    plib::settleBranch(tree.root.get());
    const QString text = plib::selectionText(tree.root.get());
    for (auto _ : state)
        plib::applySelection(tree.root.get(), text);
}

void collectScript(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    tree.checkAll();
    for (auto _ : state) {
        std::vector<QString> lines;
        plib::collectScriptLines(tree.root.get(), lines, plib::Keywords::English, 1,
                                 [] { return 0; });
        benchmark::DoNotOptimize(lines.size());
    }
}

void walk(const plib::OutputNode* parent, const std::vector<QString>& all,
          std::vector<QString>* lines)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        const plib::OutputNode* node = parent->child(i);
        walk(node, all, lines);
        if (node->isLC < 0 || node->checkState(0) == Qt::Unchecked)
            continue;
        // Two lines for each row. Each line is a deep copy, because the product has to create each
        // line, too.
        for (int n = 0; n < 2 && lines->size() < all.size(); ++n) {
            const QString& line = all[lines->size()];
            lines->push_back(QString(line.constData(), line.size()));
        }
    }
}

/// Walks the same tree and appends the same lines, which have been prepared in advance.
void appendLines(benchmark::State& state)
{
    Tree tree(int(state.range(0)));
    tree.checkAll();
    std::vector<QString> all;
    plib::collectScriptLines(tree.root.get(), all, plib::Keywords::English, 1, [] { return 0; });
    for (auto _ : state) {
        std::vector<QString> lines;
        walk(tree.root.get(), all, &lines);
        benchmark::DoNotOptimize(lines.size());
    }
}

constexpr int Small = 50000;
constexpr int Medium = 100000;
constexpr int Large = 300000;

BENCHMARK(parseCatalogue)->Arg(Small)->Arg(Medium)->Arg(Large);
BENCHMARK(splitCatalogue)->Arg(Medium);
BENCHMARK(rebuildTree)->Arg(Small)->Arg(Medium)->Arg(Large);
BENCHMARK(applySelection)->Arg(Small)->Arg(Medium)->Arg(Large);
BENCHMARK(collectScript)->Arg(Small)->Arg(Medium)->Arg(Large);
BENCHMARK(appendLines)->Arg(Medium);

} // namespace

int main(int argc, char* argv[])
{
    // The last four bounds detect non-linear work: quadratic work would have a ratio of six.
    const auto growth = [](const std::string& name) {
        return Bound{name + "/300000", name + "/50000", 1.4, "does the same, each item",
                     Figure::TimePerItem};
    };
    return runBenchmarks(argc, argv,
                         {{"parseCatalogue/100000", "splitCatalogue/100000", 0.5,
                           "splits and trims the same lines, and frees the parts"},
                          {"collectScript/100000", "appendLines/100000", 2.2,
                           "walks the same tree and copies lines that are ready"},
                          {"applySelection/100000", "rebuildTree/100000", 0.25,
                           "frees and builds the same tree of plain nodes"},
                          growth("parseCatalogue"),
                          growth("rebuildTree"),
                          growth("applySelection"),
                          growth("collectScript")});
}
