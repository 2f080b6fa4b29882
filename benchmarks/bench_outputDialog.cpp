// Measures the output dialog and the window's script with many load cases: clicking, checking all
// plots, excluding load cases, and opening the dialog. For comparison, it also measures filling a
// text document with the same script, generating the script, and the same operations with fewer
// load cases. The counter "bytes" is the memory that the clicks leave allocated.

#include "memory.h"
#include "plotModel.h"
#include "RatioReporter.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_P_WidgetGraphicalOutput_Script.h>
#include <window/output/LoadCaseTable.h>
#include <window/output/OutputDialog.h>
#include <window/script/lineChanges.h>
#include <window/script/ScriptView.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>

namespace {
using workbench::OutputDialog;
using workbench::TextLines;

constexpr int Clicked = 1200; // number of load cases; the script has about 240 000 lines
constexpr int Few = 1000;
constexpr int Many = 10000;

/// A project with load cases and with content for about a hundred plots.
std::unique_ptr<VKD_H_ZOBDoc> newProject(const QTemporaryDir& folder, int loadCases)
{
    auto document =
        VKD_H_ZOBDoc::create(folder.filePath(QString::number(loadCases) + QLatin1String(".zob")));
    vkd::dbo::Model model = plotModel();
    for (int number = 1; number <= loadCases; ++number)
        model.loadCases.append({number, QStringLiteral("Load case %1").arg(number), 1});
    vkd::dbo::storeModel(document->handle(), model);
    return document;
}

/// Returns the project with this number of load cases. Projects are cached until the process ends.
VKD_H_ZOBDoc* project(int loadCases)
{
    static const QTemporaryDir folder;
    static std::map<int, std::unique_ptr<VKD_H_ZOBDoc>> known;
    std::unique_ptr<VKD_H_ZOBDoc>& document = known[loadCases];
    if (!document)
        document = newProject(folder, loadCases);
    return document.get();
}

/// A dialog with the script of its selection next to it, as in the window.
class Output
{
public:
    explicit Output(int loadCases)
        : dialog(project(loadCases), {}, nullptr)
        , tree(dialog.findChild<QTreeWidget*>())
    {
        QObject::connect(&dialog, &OutputDialog::choiceChanged, &dialog, [this] { follow(); });
        dialog.show();
        view.show();
        QApplication::processEvents();
    }

    void setAll(Qt::CheckState state)
    {
        for (int i = 0; i < tree->topLevelItemCount(); ++i)
            tree->topLevelItem(i)->setCheckState(0, state);
        finish();
    }
    void finish()
    {
        dialog.finishChanges();
        QApplication::processEvents();
    }
    QTreeWidgetItem* firstRow() const
    {
        for (QTreeWidgetItemIterator item(tree); *item; ++item)
            if ((*item)->childCount() >= Few)
                return (*item)->child(Few / 2);
        qFatal("no plot has the load cases");
    }

    OutputDialog dialog;
    QTreeWidget* tree;
    workbench::ScriptView view;

private:
    /// Marks the lines of the last caption, which take the longest to find.
    void markPlot()
    {
        QTreeWidgetItem* item = tree->topLevelItem(tree->topLevelItemCount() - 1);
        QVector<int> found;
        QMetaObject::invokeMethod(dialog.findChild<QObject*>(QLatin1String(
                                      vkd::plib::widgetgraphicaloutput::ScriptObject)),
                                  "linesOfItem", Q_RETURN_ARG(QVector<int>, found),
                                  Q_ARG(QTreeWidgetItem*, item));
        view.setPlot(found.value(0), found.value(1));
    }
    void follow()
    {
        const TextLines lines(dialog.script(vkd::Language::English));
        view.setLines(lines, workbench::lineChanges(view.lines(), lines));
        markPlot();
        benchmark::DoNotOptimize(dialog.isChanged());
    }
};

void toggle(QTreeWidgetItem* item)
{
    item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void clickOn(QTreeWidgetItem* row, Output& output, benchmark::State& state)
{
    toggle(row);
    output.finish(); // the first click allocates memory that is then reused
    const double before = heapInUse();
    for (auto _ : state) {
        toggle(row);
        output.finish();
    }
    state.counters["bytes"] = heapInUse() - before;
}

/// Measures the time from a click on a load case of a plot until the script and its view have been
/// updated.
void click(benchmark::State& state)
{
    Output output(Clicked);
    output.setAll(Qt::Checked);
    clickOn(output.firstRow(), output, state);
}

/// Does the same with more load cases and the proposed plots.
void clickProposed(benchmark::State& state)
{
    Output output(Many);
    clickOn(output.firstRow(), output, state);
}

void fillDocument(benchmark::State& state)
{
    Output output(Clicked);
    output.setAll(Qt::Checked);
    const QString script = output.view.plainText();
    QPlainTextEdit edit;
    edit.show();
    for (auto _ : state) {
        edit.setPlainText(script);
        QApplication::processEvents();
    }
}

/// Measures the time from checking all plots until the script and its view have been updated.
void checkAll(benchmark::State& state)
{
    Output output(Few);
    for (auto _ : state) {
        state.PauseTiming();
        output.setAll(Qt::Unchecked);
        const double before = heapInUse();
        state.ResumeTiming();
        output.setAll(Qt::Checked);
        state.counters["bytes"] = heapInUse() - before;
    }
}

void makeScript(benchmark::State& state)
{
    Output output(Few);
    output.setAll(Qt::Checked);
    for (auto _ : state) {
        const double before = heapInUse();
        const QString script = output.dialog.script(vkd::Language::English);
        state.counters["bytes"] = heapInUse() - before;
        benchmark::DoNotOptimize(script.size());
    }
}

void makeProposedScript(benchmark::State& state)
{
    Output output(Many);
    for (auto _ : state)
        benchmark::DoNotOptimize(output.dialog.script(vkd::Language::English));
}

/// Alternately excludes a load case and offers it again.
void offerLoadCase(benchmark::State& state)
{
    Output output(int(state.range(0)));
    QTableWidgetItem* box = output.dialog.findChild<workbench::LoadCaseTable*>()->item(
        0, workbench::LoadCaseTable::CheckColumn);
    const double before = heapInUse();
    for (auto _ : state) {
        box->setCheckState(box->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        output.finish();
    }
    state.counters["bytes"] = heapInUse() - before;
}

/// Hides half of the load cases and shows them again.
void filterLoadCases(benchmark::State& state)
{
    const int number = int(state.range(0));
    const Output output(number);
    auto filter = output.dialog.findChild<QLineEdit*>(QStringLiteral("ChoiceFilter"));
    for (auto _ : state) {
        filter->setText(QStringLiteral("1-%1").arg(number / 2));
        filter->clear();
    }
}

void openDialog(benchmark::State& state)
{
    project(int(state.range(0)));
    for (auto _ : state) {
        const double before = heapInUse();
        const Output output(int(state.range(0)));
        state.counters["bytes"] = heapInUse() - before;
    }
}

/// Compares the memory of a view of a script with 240 000 lines with the memory of the text.
void viewMemory(benchmark::State& state)
{
    const QString text = QStringLiteral("LC 12345 DESI 12345\nBEAM MY\n").repeated(120000);
    for (auto _ : state) {
        workbench::ScriptView view;
        const double before = heapInUse();
        view.setLines(TextLines(text + QLatin1Char('\n')), {});
        state.counters["bytes"] = heapInUse() - before;
    }
}

void textMemory(benchmark::State& state)
{
    const QString text = QStringLiteral("LC 12345 DESI 12345\nBEAM MY\n").repeated(120000);
    for (auto _ : state) {
        const double before = heapInUse();
        const QString copy = text + QLatin1Char('\n');
        state.counters["bytes"] = heapInUse() - before;
        benchmark::DoNotOptimize(copy.size());
    }
}

BENCHMARK(click)->Unit(benchmark::kMillisecond);
BENCHMARK(clickProposed)->Unit(benchmark::kMillisecond);
BENCHMARK(makeProposedScript)->Unit(benchmark::kMillisecond);
BENCHMARK(fillDocument)->Unit(benchmark::kMillisecond);
BENCHMARK(checkAll)->Unit(benchmark::kMillisecond);
BENCHMARK(makeScript)->Unit(benchmark::kMillisecond);
BENCHMARK(offerLoadCase)->Arg(Few)->Arg(Many)->Unit(benchmark::kMillisecond);
BENCHMARK(filterLoadCases)->Arg(Many)->Unit(benchmark::kMillisecond);
BENCHMARK(openDialog)->Arg(Few)->Arg(Many)->Unit(benchmark::kMillisecond);
BENCHMARK(viewMemory)->Unit(benchmark::kMillisecond);
BENCHMARK(textMemory)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    return runBenchmarks(
        argc, argv,
        {{"click", "fillDocument", 0.1, "fills a text document with the same script"},
         {"click", "", 1.0, "megabytes that remain in use", Figure::Memory},
         {"clickProposed", "makeProposedScript", 4.0, "makes the script of the proposed plots"},
         {"checkAll", "makeScript", 3.0, "makes the script of all plots"},
         {"checkAll", "makeScript", 1.5, "is the memory of this script", Figure::Memory},
         {"offerLoadCase/10000", "offerLoadCase/1000", 1.4, "the same with 1000 load cases",
          Figure::TimePerItem},
         {"offerLoadCase/10000", "", 1.0, "megabytes that remain in use", Figure::Memory},
         {"filterLoadCases/10000", "", 33.0, "milliseconds, so that each letter takes one frame"},
         {"openDialog/10000", "openDialog/1000", 1.4, "the same with 1000 load cases",
          Figure::TimePerItem},
         {"openDialog/10000", "openDialog/1000", 10.5, "the same with a tenth of the load cases",
          Figure::Memory},
         {"viewMemory", "textMemory", 1.3, "copies the text", Figure::Memory}});
}
