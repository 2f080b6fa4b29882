#include "design/DesignParameter.h"

#include "design/GroupsEntry.h"
#include "design/HostRows.h"
#include "design/RowActions.h"
#include "design/RowButtonHints.h"
#include "design/RowParameters.h"
#include "design/RowsClipboard.h"
#include "design/RowsHistory.h"
#include "design/RowsNotice.h"
#include "dialogs/rejectDialogs.h"
#include "fields/BoxExplanation.h"
#include "record/designEntries.h"
#include "record/designRows.h"
#include "record/designStore.h"
#include "record/rowText.h"
#include "table/designColumns.h"
#include "table/DesignParameterTable.h"
#include "table/RowToolTip.h"
#include "table/TypeEditor.h"

#include <vkd_dbo_queries.h>
#include <VKD_H_TableItems.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_SignalBlocker.h>
#include <VKD_T_Help.h>

#include <QApplication>
#include <QHeaderView>

#include <utility>

using plib::DesignParameterRow;
using plib::RecordedStep;
using plib::RowsStep;
using Table = DesignParameterTable;

namespace {
constexpr int MinimumWidth = 890;
} // namespace

DesignParameter::DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent,
                                 bool flagA, bool flagB)
    : QWidget(parent)
    , data(new plib::DesignParameterData)
{
    data->barData = &barTable;
    data->flagB = flagB;
    data->flagA = flagA;
    data->doc = doc;
    data->designDoc = designDoc;
    barTable.load(doc->index());
}

/// Disconnects from the application, because the focus still changes while the table is being
/// destroyed. At that time the slots must no longer run.
DesignParameter::~DesignParameter()
{
    disconnect(qApp, nullptr, this, nullptr);
    delete findChild<plib::TypeEditor*>(); // an open list commits its entry when it loses the focus
    plib::rejectDialogs(this);
}

void DesignParameter::setDialog(VKD_QT_Dialog* dialog)
{
    data->dialog = dialog;
}

void DesignParameter::init()
{
    data->kindOfSystem = vkd::dbo::getKindOfSystem(data->designDoc->index(), nullptr);
    data->table = new DesignParameterTable(this);
    data->table->setContextmenueEnabled_new_del(false);
    data->table->setAccessibleName(tr("Design parameter"));
    data->table->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    data->table->verticalHeader()->show();
    plib::buildDesignColumns(data->table);
    auto layout = new VKD_QT_VBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildBox());
    setLayout(layout);
    connectTable();
    new plib::RowsHistory(this);
    new plib::HostRows(this);
    new plib::RowActions(this);
    new plib::RowsClipboard(this);
    new plib::RowParameters(this);
    new plib::RowToolTip(this);
    new plib::TypeEditor(this);
    new plib::GroupsEntry(this);
    new plib::RowButtonHints(this);
    setFocusProxy(data->table);
    editRow = -1;
    editColumn = -1;
    setMinimumWidth(MinimumWidth);
}

VKD_H_TableWidgetBox* DesignParameter::buildBox()
{
    Table* table = data->table;
    auto box = new VKD_H_TableWidgetBox(table, tr("Design parameter"), this, "box");
    box->createDefaultLayout(false, true);
    box->addButton(VKD_H_TableWidgetBox::New, false);
    box->addButton(VKD_H_TableWidgetBox::Delete, false);
    auto up = new VKD_QT_PushButton(tr("Up"), table, "btnUp");
    connect(up, &QPushButton::clicked, this, &DesignParameter::slot_up);
    box->addWidget(up);
    auto down = new VKD_QT_PushButton(tr("Down"), table, "btnDown");
    connect(down, &QPushButton::clicked, this, &DesignParameter::slot_down);
    box->addWidget(down);
    box->addWidget(new plib::RowsNotice(this));
    connect(box->getButton(VKD_H_TableWidgetBox::New), &QPushButton::clicked, this,
            &DesignParameter::slot_newRowClicked);
    connect(box->getButton(VKD_H_TableWidgetBox::Delete), &QPushButton::clicked, this,
            &DesignParameter::slot_deleteClicked);
    return box;
}

void DesignParameter::connectTable()
{
    Table* table = data->table;
    connect(table, &QTableWidget::itemChanged, this, &DesignParameter::slot_typComboChanged);
    connect(table, &QTableWidget::itemSelectionChanged, this,
            &DesignParameter::slot_editCellWidget);
    connect(table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &DesignParameter::followCurrentCell, Qt::QueuedConnection);
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (hasFocusInEditor())
            makeEditedCellCurrent();
    });
    connect(table, &Table::signal_newClicked, this, &DesignParameter::slot_newRowClicked);
    connect(table, &Table::signal_delClicked, this, &DesignParameter::slot_deleteClicked);
}

void DesignParameter::readZob()
{
    plib::readRowsFromZob(*data);
    refreshRows(-1);
}

/// Moves the focus to the table, because the selection in an open list of types takes effect only
/// when the list loses focus.
void DesignParameter::finishEditing()
{
    const QWidget* focus = QApplication::focusWidget();
    if (focus && data->table->viewport()->isAncestorOf(focus))
        data->table->setFocus();
}

void DesignParameter::writeToZob()
{
    finishEditing();
    plib::writeRowsToZob(*data, converted);
    restartHistory();
}

void DesignParameter::getEntrys(VKD_H_ProjectDialogPage& page)
{
    plib::readRowsFromZob(*data);
    plib::readRowsFromEntries(*data, page);
    refreshRows(-1);
    data->entriesLoaded = true;
}

void DesignParameter::setEntrys(VKD_H_ProjectDialogPage& page)
{
    finishEditing();
    plib::writeRowsToZob(*data, converted);
    plib::writeRowsToEntries(*data, page);
    restartHistory();
}

bool DesignParameter::checkVals()
{
    if (data->entriesLoaded || !plib::hasRowWithoutGroups(*data))
        return true;
    const plib::BoxExplanation explanation(
        this, tr("Yes continues without the rows that have no groups; they are not stored. No "
                 "returns to the page."));
    return VKD_QT_MessageBox::warning(this, tr("Warning"),
                                      tr("No groups selected.\nPossible loss of data!"),
                                      QMessageBox::Yes, QMessageBox::No, 0) != QMessageBox::No;
}

void DesignParameter::help_clicked()
{
    VKD_T_Help::show(this, "MERDAN", "PARA");
}

void DesignParameter::addTableRow()
{
    const int target = data->table->rowCount() + 1;
    data->table->addNewRow(false);
    while (data->table->rowCount() > target) // the base class may add more than one row
        data->table->removeRow(data->table->rowCount() - 1);
}

void DesignParameter::drawRow(const DesignParameterRow& row, int number, bool isNew)
{
    Table* table = data->table;
    const VKD_QT_SignalBlocker blocker(table);
    // A row that has just been inserted is repainted anyway, so the view does not need a signal for
    // each cell.
    const VKD_QT_SignalBlocker silent(isNew ? table->model() : nullptr);
    if (isNew)
        table->createEmptyItems(number);
    for (int column = 0; column < Table::ColumnCount; ++column) {
        QTableWidgetItem* item = table->item(number, column);
        if (!item)
            continue;
        item->setText(plib::rowText(row, column));
        item->setTextAlignment(Qt::AlignCenter);
        if (column != Table::Type)
            item->setFlags(item->flags() & ~Qt::ItemIsEditable);
    }
}

/// Updates the texts of a row. If `number` is -1, appends all rows to an empty table. Groups are
/// listed in their current order, which is not necessarily sorted.
void DesignParameter::refreshRows(int number)
{
    if (number != -1) {
        if (!isRow(number))
            return;
        drawRow(data->rows[std::size_t(number)], number, false);
        data->table->fitRows(number, number);
        return;
    }
    for (const DesignParameterRow& row : data->rows) {
        addTableRow();
        drawRow(row, data->table->rowCount() - 1, true);
    }
    showSharedGroups();
    data->table->fitAllRows();
    restartHistory();
    Q_EMIT signal_rowCountChanged(data->table->rowCount());
}

bool DesignParameter::isRow(int row) const
{
    return row >= 0 && row < int(data->rows.size()) && row < data->table->rowCount();
}

/// Changes only the type. Values entered for a third layer are preserved when the type changes to
/// two layers.
void DesignParameter::slot_typComboChanged(QTableWidgetItem* item)
{
    if (!item || !item->tableWidget() || item->column() != Table::Type)
        return;
    const int row = item->row();
    const auto combo =
        dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(data->table->itemOnColId(row, Table::Type));
    if (!combo)
        return;
    setType(findChild<plib::TypeEditor*>()->rowsOf(row), combo->getCurrentId());
}

void DesignParameter::setType(const std::set<int>& rows, int type)
{
    const RecordedStep step(this, RowsStep::Type, rows);
    const VKD_QT_SignalBlocker blocker(data->table);
    for (int row : rows)
        if (DesignParameterRow* changed = plib::rowAt(*data, row))
            changed->record.type = type;
    refresh(rows);
}

void DesignParameter::slot_newRowClicked()
{
    {
        const RecordedStep step(this, RowsStep::New, {data->table->rowCount()});
        addTableRow();
        const int row = data->table->rowCount() - 1;
        drawRow(plib::addDefaultRow(*data), row, true);
        data->table->fitRows(row, row);
        data->table->bringIntoView(row);
        data->table->setCurrentCell(row, Table::Type, QItemSelectionModel::ClearAndSelect);
        Q_EMIT signal_rowCountChanged(data->table->rowCount());
    }
    data->table->setFocus();
    showNotice(tr("The row shows values once it has a type. Its groups can be typed, for example "
                  "1-4, 7."));
}

/// If row 0 is selected, nothing is deleted, not even the other selected rows.
void DesignParameter::slot_deleteClicked()
{
    Table* table = data->table;
    if (table->isRowSelected(0))
        return;
    const std::set<int> rows = table->getSelectetRows();
    if (!rows.empty()) {
        finishEditing(); // while the signals of the table are still enabled
        const RecordedStep step(this, RowsStep::Delete, rows);
        closeCellWidget();
        editRow = editColumn = -1;
        const VKD_QT_SignalBlocker blocker(table); // until the rows match the table again
        table->deleteSelectedRows();
        plib::removeRows(*data, rows);
        showSharedGroups();
        table->fitAllRows();
    }
    Q_EMIT signal_rowCountChanged(table->rowCount());
}

void DesignParameter::slot_up()
{
    const int row = data->table->currentRow();
    if (plib::mayMoveUp(*data, row))
        swapRows(row, row - 1);
}

void DesignParameter::slot_down()
{
    const int row = data->table->currentRow();
    if (plib::mayMoveDown(*data, row))
        swapRows(row, row + 1);
}

/// An open editor remains at its cell until the current cell moves to the other row.
void DesignParameter::swapRows(int row, int other)
{
    const RecordedStep step(this, other < row ? RowsStep::Up : RowsStep::Down, {row});
    std::swap(data->rows[std::size_t(row)], data->rows[std::size_t(other)]);
    refreshRows(row);
    refreshRows(other);
    showSharedGroups();
    data->table->setCurrentCell(other, data->table->currentColumn());
}
