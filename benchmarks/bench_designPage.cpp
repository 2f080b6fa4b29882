// The table and the dialogs of the design page, compared with plain Qt widgets with the same
// content.

#include "processorTime.h"
#include "RatioReporter.h"

#include <dialogs/dlgCrackControl.h>
#include <dialogs/dlgDistanceDirection.h>
#include <dialogs/dlgReinforcement.h>
#include <record/DesignParameterData.h>
#include <record/designRecord.h>
#include <record/designStore.h>
#include <record/rowText.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_P_DesignParameter>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <functional>
#include <type_traits>

namespace {
constexpr int Rows = 10000;
constexpr int Columns = 5;
constexpr int Steps = 100; // an even number

/// A project in which each group has different parameters and therefore its own row.
class Project
{
public:
    Project()
        : doc(VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("p.zob"))))
    {
        plib::DesignParameterData written;
        written.designDoc = doc.get();
        for (int group = 0; group < Rows; ++group) {
            tagZOB_QUAD_RIM record = plib::getDefaultMerPara(true);
            record.rio = float(group) / Rows;
            written.rows.push_back({nullptr, record, {group}});
        }
        bool converted = true; // the records are already in the stored form
        plib::writeRowsToZob(written, converted);
    }

    plib::DesignParameterData read() const
    {
        plib::DesignParameterData data;
        data.designDoc = doc.get();
        plib::readRowsFromZob(data);
        return data;
    }

private:
    QTemporaryDir m_folder;

public:
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

std::unique_ptr<VKD_P_DesignParameter> newPage(const Project& project)
{
    auto page = std::make_unique<VKD_P_DesignParameter>(project.doc.get(), project.doc.get(),
                                                        nullptr, false, false);
    page->init();
    page->show();
    QApplication::processEvents();
    return page;
}

/// Measures the time for reading, showing and freeing the rows, minus the time for reading them.
void fillPage(benchmark::State& state)
{
    const Project project;
    for (auto _ : state) {
        double start = processorSeconds();
        project.read();
        const double reading = processorSeconds() - start;
        auto page = newPage(project);
        start = processorSeconds();
        page->readZob();
        page.reset();
        state.SetIterationTime(processorSeconds() - start - reading);
    }
}

/// Adds the same items row by row. The cell texts are built in the loop, as on the page, because
/// only the tables are compared.
void fillBareTable(benchmark::State& state)
{
    const Project project;
    const plib::DesignParameterData data = project.read();
    for (auto _ : state) {
        auto table = std::make_unique<QTableWidget>(0, Columns);
        table->show();
        QApplication::processEvents();
        const double start = processorSeconds();
        for (const plib::DesignParameterRow& row : data.rows) {
            const int number = table->rowCount();
            table->insertRow(number);
            for (int column = 0; column < Columns; ++column) {
                auto item = new QTableWidgetItem(plib::rowText(row, column));
                item->setTextAlignment(Qt::AlignCenter);
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
                table->setItem(number, column, item);
            }
        }
        table.reset();
        state.SetIterationTime(processorSeconds() - start);
    }
}

void trigger(const VKD_P_DesignParameter& page, const char* action)
{
    page.findChild<QAction*>(QLatin1String(action))->trigger();
}

/// Selects every second row, which is the worst case.
void selectHalf(QTableWidget* table)
{
    QItemSelection selection;
    for (int row = 1; row < table->rowCount(); row += 2)
        selection.select(table->model()->index(row, 0), table->model()->index(row, Columns - 1));
    table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

/// Measures the time for deleting every second row.
void deleteHalf(benchmark::State& state)
{
    const Project project;
    for (auto _ : state) {
        const auto page = newPage(project);
        page->readZob();
        auto table = page->findChild<QTableWidget*>(QStringLiteral("table"));
        selectHalf(table);
        const double start = processorSeconds();
        page->findChild<QPushButton*>(QStringLiteral("btnDelete"))->click();
        state.SetIterationTime(processorSeconds() - start);
        if (table->rowCount() != Rows / 2)
            state.SkipWithError("not all rows were deleted");
    }
}

/// Measures the time for undoing the deletion of every second row.
void undoDeletion(benchmark::State& state)
{
    const Project project;
    for (auto _ : state) {
        const auto page = newPage(project);
        page->readZob();
        auto table = page->findChild<QTableWidget*>(QStringLiteral("table"));
        selectHalf(table);
        page->findChild<QPushButton*>(QStringLiteral("btnDelete"))->click();
        const double start = processorSeconds();
        trigger(*page, "undo");
        state.SetIterationTime(processorSeconds() - start);
        if (table->rowCount() != Rows || !table->item(1, 0)->isSelected())
            state.SkipWithError("not all rows were restored");
    }
}

/// Alternately undoes and redoes a change to the type of a row.
void undoOneRow(benchmark::State& state)
{
    const Project project;
    const auto page = newPage(project);
    page->readZob();
    auto table = page->findChild<QTableWidget*>(QStringLiteral("table"));
    table->setCurrentCell(Rows / 2, 1);
    table->item(Rows / 2, 1)->setText(QStringLiteral("Circular"));
    for (auto _ : state)
        for (int i = 0; i < Steps; ++i)
            trigger(*page, i % 2 == 0 ? "undo" : "redo");
}

/// Writes the texts of one row into a bare table and adjusts the height of the row.
void redrawOneRow(benchmark::State& state)
{
    const Project project;
    const plib::DesignParameterData data = project.read();
    QTableWidget table(Rows, Columns);
    for (int column = 0; column < Columns; ++column)
        table.setItem(Rows / 2, column, new QTableWidgetItem);
    table.show();
    QApplication::processEvents();
    for (auto _ : state)
        for (int i = 0; i < Steps; ++i) {
            for (int column = 0; column < Columns; ++column)
                table.item(Rows / 2, column)
                    ->setText(plib::rowText(data.rows[std::size_t(i)], column));
            table.resizeRowToContents(Rows / 2);
        }
}

/// Copies all rows and pastes them onto themselves. Only the paste is timed.
void pasteAll(benchmark::State& state)
{
    const Project project;
    for (auto _ : state) {
        const auto page = newPage(project);
        page->readZob();
        auto table = page->findChild<QTableWidget*>(QStringLiteral("table"));
        table->selectAll();
        trigger(*page, "copyRows");
        table->item(0, 1)->setText(QStringLiteral("Circular"));
        const double start = processorSeconds();
        trigger(*page, "pasteRows");
        state.SetIterationTime(processorSeconds() - start);
        if (table->item(0, 1)->text() == QLatin1String("Circular"))
            state.SkipWithError("the rows were not pasted");
    }
}

void openAndPaint(QWidget* dialog)
{
    dialog->show();
    dialog->grab();
}

tagZOB_QUAD_RIM threeLayers()
{
    tagZOB_QUAD_RIM record = plib::getDefaultMerPara(false);
    record.type = 3;
    return record;
}

template <class Dialog>
std::unique_ptr<Dialog> newDialog()
{
    tagZOB_QUAD_RIM record = threeLayers();
    if constexpr (std::is_same_v<Dialog, dlgReinforcement>)
        return std::make_unique<Dialog>(0, &record, nullptr);
    else
        return std::make_unique<Dialog>(&record, nullptr);
}

template <class Dialog>
void openDialog(benchmark::State& state)
{
    for (auto _ : state)
        openAndPaint(newDialog<Dialog>().get());
}

/// Opens the dialog from the page, and passes it to a function that runs in its event loop.
template <class Dialog>
void runFromPage(VKD_P_DesignParameter& page, const std::function<void(QDialog*)>& use)
{
    QTimer::singleShot(0, [&use] {
        auto dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        use(dialog);
        dialog->reject();
    });
    trigger(page, std::is_same_v<Dialog, dlgReinforcement>       ? "editReinforcement"
                  : std::is_same_v<Dialog, dlgDistanceDirection> ? "editDirections"
                                                                 : "editCrackControl");
}

/// Continues with the next row and paints the dialog.
template <class Dialog>
void stepToNextRow(benchmark::State& state)
{
    const Project project;
    const auto page = newPage(project);
    page->readZob();
    auto table = page->findChild<QTableWidget*>(QStringLiteral("table"));
    table->setCurrentCell(1, 2);
    runFromPage<Dialog>(*page, [&state](QDialog* dialog) {
        auto next = dialog->findChild<QToolButton*>(QStringLiteral("nextRow"));
        dialog->grab();
        for (auto _ : state) {
            next->click();
            dialog->grab();
        }
    });
    if (table->currentRow() == 1)
        state.SkipWithError("the row is still the same");
}

/// Opens the dialog from the page and paints it.
template <class Dialog>
void openFromPage(benchmark::State& state)
{
    const Project project;
    const auto page = newPage(project);
    page->readZob();
    page->findChild<QTableWidget*>(QStringLiteral("table"))->setCurrentCell(1, 2);
    for (auto _ : state)
        runFromPage<Dialog>(*page, [](QDialog* dialog) { dialog->grab(); });
}

/// Shows the same number of Qt widgets of each kind as the dialog has, in a window with a grid of
/// four columns.
template <class Dialog>
void openPlainDialog(benchmark::State& state)
{
    const auto model = newDialog<Dialog>();
    const QList<QComboBox*> combos = model->template findChildren<QComboBox*>();
    int edits = model->template findChildren<QLineEdit*>().size();
    for (const QComboBox* combo : combos)
        edits -= combo->isEditable(); // creates a line edit of its own
    const int buttons = model->template findChildren<QPushButton*>().size();
    const int labels = model->template findChildren<QLabel*>().size();
    for (auto _ : state) {
        QDialog dialog;
        auto box = new QGroupBox(QStringLiteral("Title"), &dialog);
        (new QGridLayout(&dialog))->addWidget(box);
        auto grid = new QGridLayout(box);
        int place = 0;
        const auto add = [&](QWidget* widget) {
            grid->addWidget(widget, place / 4, place % 4);
            ++place;
        };
        for (const QComboBox* combo : combos) {
            auto plain = new QComboBox(&dialog);
            plain->setEditable(combo->isEditable());
            for (int entry = 0; entry < combo->count(); ++entry)
                plain->addItem(combo->itemText(entry));
            add(plain);
        }
        for (int i = 0; i < edits; ++i)
            add(new QLineEdit(QStringLiteral("12.50"), &dialog));
        for (int i = 0; i < labels; ++i)
            add(new QLabel(QStringLiteral("Principal Reinforcement"), &dialog));
        for (int i = 0; i < buttons; ++i)
            add(new QPushButton(QStringLiteral("OK"), &dialog));
        openAndPaint(&dialog);
    }
}

BENCHMARK(fillPage)->UseManualTime();
BENCHMARK(fillBareTable)->UseManualTime();
BENCHMARK(deleteHalf)->UseManualTime();
BENCHMARK(undoDeletion)->UseManualTime();
BENCHMARK(pasteAll)->UseManualTime();
BENCHMARK(undoOneRow);
BENCHMARK(redrawOneRow);
BENCHMARK_TEMPLATE(stepToNextRow, dlgDistanceDirection);
BENCHMARK_TEMPLATE(openFromPage, dlgDistanceDirection);
BENCHMARK_TEMPLATE(stepToNextRow, dlgReinforcement);
BENCHMARK_TEMPLATE(openFromPage, dlgReinforcement);
BENCHMARK_TEMPLATE(stepToNextRow, dlgCrackControl);
BENCHMARK_TEMPLATE(openFromPage, dlgCrackControl);
BENCHMARK_TEMPLATE(openDialog, dlgDistanceDirection);
BENCHMARK_TEMPLATE(openPlainDialog, dlgDistanceDirection);
BENCHMARK_TEMPLATE(openDialog, dlgReinforcement);
BENCHMARK_TEMPLATE(openPlainDialog, dlgReinforcement);
BENCHMARK_TEMPLATE(openDialog, dlgCrackControl);
BENCHMARK_TEMPLATE(openPlainDialog, dlgCrackControl);

Bound opening(const char* dialog)
{
    return {std::string("openDialog<") + dialog + ">",
            std::string("openPlainDialog<") + dialog + ">", 1.3,
            "shows as many Qt widgets of each kind in one grid"};
}

Bound stepping(const char* dialog)
{
    return {std::string("stepToNextRow<") + dialog + ">",
            std::string("openFromPage<") + dialog + ">", 1.2, "opens the dialog from the page"};
}
} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return runBenchmarks(
        argc, argv,
        {{"fillPage/manual_time", "fillBareTable/manual_time", 1.3,
          "builds the same texts and adds them to a bare table row by row"},
         {"deleteHalf/manual_time", "fillPage/manual_time", 0.7, "fills and frees all rows"},
         {"undoDeletion/manual_time", "fillPage/manual_time", 1.0, "fills and frees all rows"},
         {"pasteAll/manual_time", "fillPage/manual_time", 2.0, "fills and frees all rows"},
         {"undoOneRow", "redrawOneRow", 2.0,
          "writes the texts of a row into a bare table and fits its height"},
         stepping("dlgDistanceDirection"),
         stepping("dlgReinforcement"),
         stepping("dlgCrackControl"),
         opening("dlgDistanceDirection"),
         opening("dlgReinforcement"),
         opening("dlgCrackControl")});
}
