#include "DesignParameter.h"

#include "designColumns.h"
#include "designEntries.h"
#include "DesignParameterTable.h"
#include "designRecord.h"
#include "designRows.h"
#include "designStore.h"
#include "dlgCrackControl.h"
#include "dlgDistanceDirection.h"
#include "dlgReinforcement.h"
#include "dlgSelection.h"
#include "rowText.h"

#include <vkd_dbo_queries.h>
#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_TableItems.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_SignalBlocker.h>
#include <VKD_QT_TableWidgetButton.h>
#include <VKD_T_Help.h>

#include <QHeaderView>

#include <algorithm>

using plib::DesignParameterRow;
using Table = DesignParameterTable;

namespace {
constexpr int MinimumWidth = 890;
constexpr int DesignKey = 200; // the first key of the records
constexpr int PickOutside = 6; // a group dialog's result

/// What the combo of a cell says about a row's groups when the cell is left.
enum SelectionId {
    NoneId = 0,
    RemainingId = 1,
};
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

DesignParameter::~DesignParameter() = default;

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
    connect(table, &Table::signal_newClicked, this, &DesignParameter::slot_newRowClicked);
    connect(table, &Table::signal_delClicked, this, &DesignParameter::slot_deleteClicked);
}

void DesignParameter::readZob()
{
    plib::readRowsFromZob(*data);
    refreshRows(-1);
}

void DesignParameter::writeToZob()
{
    plib::writeRowsToZob(*data, converted);
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
    plib::writeRowsToZob(*data, converted);
    plib::writeRowsToEntries(*data, page);
}

bool DesignParameter::checkVals()
{
    if (data->entriesLoaded || !plib::hasRowWithoutGroups(*data))
        return true;
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
    while (data->table->rowCount() > target) // the framework may add more than one
        data->table->removeRow(data->table->rowCount() - 1);
}

void DesignParameter::drawRow(const DesignParameterRow& row, int number, bool isNew)
{
    Table* table = data->table;
    const VKD_QT_SignalBlocker blocker(table);
    // A row that was only just inserted is painted anyway; telling the view of each cell costs
    // time.
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

/// Lists of groups are drawn in the order that they have at the moment. -1 is for an empty table.
void DesignParameter::refreshRows(int number)
{
    if (number != -1) {
        if (!isRow(number))
            return;
        drawRow(data->rows[std::size_t(number)], number, false);
        data->table->fitRow(number);
        return;
    }
    for (const DesignParameterRow& row : data->rows) {
        addTableRow();
        drawRow(row, data->table->rowCount() - 1, true);
    }
    data->table->fitRows();
    Q_EMIT signal_rowCountChanged(data->table->rowCount());
}

bool DesignParameter::isRow(int row) const
{
    return row >= 0 && row < int(data->rows.size()) && row < data->table->rowCount();
}

/// Nothing but the type changes: what was entered for a third layer stays with two layers.
void DesignParameter::slot_typComboChanged(QTableWidgetItem* item)
{
    if (!item || !item->tableWidget() || item->column() != Table::Type)
        return;
    const int row = item->row();
    const auto combo =
        dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(data->table->itemOnColId(row, Table::Type));
    DesignParameterRow* changed = plib::rowAt(*data, row);
    if (!combo || !changed)
        return;
    const VKD_QT_SignalBlocker blocker(data->table);
    changed->record.type = combo->getCurrentId();
    refreshRows(row);
}

void DesignParameter::slot_newRowClicked()
{
    addTableRow();
    const int row = data->table->rowCount() - 1;
    drawRow(plib::addDefaultRow(*data), row, true);
    data->table->fitRow(row);
    data->table->scrollToItem(data->table->item(row, 0));
    Q_EMIT signal_rowCountChanged(data->table->rowCount());
}

/// A selection that includes row 0 deletes nothing, not even its other rows.
void DesignParameter::slot_deleteClicked()
{
    Table* table = data->table;
    if (table->isRowSelected(0))
        return;
    const std::set<int> rows = table->getSelectetRows();
    closeCellWidget();
    editRow = editColumn = -1;
    {
        const VKD_QT_SignalBlocker blocker(table); // until the rows are those of the table again
        table->deleteSelectedRows();
        plib::removeRows(*data, rows);
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

/// An open editor stays on its cell until the current cell moves to the other row.
void DesignParameter::swapRows(int row, int other)
{
    std::swap(data->rows[std::size_t(row)], data->rows[std::size_t(other)]);
    refreshRows(row);
    refreshRows(other);
    data->table->setCurrentCell(other, data->table->currentColumn());
}

/// Moves the editor to the current cell. A cell that is selected a second time loses its editor and
/// gets none. A row without design closes the old editor and leaves its place remembered, so that
/// going back there counts as a second selection.
void DesignParameter::slot_editCellWidget()
{
    Table* table = data->table;
    if (table->rowCount() != int(data->rows.size()))
        return; // rows are being removed, and numbers do not mean the same in both
    const int row = table->currentRow();
    const int column = table->currentColumn();
    if (row == 0 && column == 0)
        return; // no editor here, and one elsewhere stays open
    closeCellWidget();
    if (row == editRow && column == editColumn) {
        editRow = editColumn = -1;
        return;
    }
    DesignParameterRow* shown = plib::rowAt(*data, row);
    const int id = column < 0 ? -1 : table->getColumnId(column);
    if (id == Table::Selection && shown)
        openSelection(row, column, *shown);
    QTableWidgetItem* item = table->item(row, column);
    if (item && id >= Table::DirectionAndDistance) {
        if (!shown || shown->record.type == plib::NoDesign)
            return;
        openButton(row, column, item);
    }
    editRow = row;
    editColumn = column;
}

void DesignParameter::closeCellWidget()
{
    const int id = editColumn < 0 ? -1 : data->table->getColumnId(editColumn);
    if (id >= Table::DirectionAndDistance)
        return clearCellWidget(editRow, editColumn);
    const auto selection =
        qobject_cast<dlgSelection*>(data->table->cellWidget(editRow, editColumn));
    if (id != Table::Selection || !selection || !isRow(editRow))
        return;
    std::vector<int>& groups = data->rows[std::size_t(editRow)].groups;
    const int chosen = selection->getCurrentId();
    if (chosen == NoneId)
        groups.clear();
    else if (chosen == RemainingId)
        groups = {-1};
    refreshRows(editRow);
    clearCellWidget(editRow, editColumn);
}

void DesignParameter::clearCellWidget(int row, int column)
{
    QWidget* widget = data->table->cellWidget(row, column);
    if (!widget)
        return;
    const bool hadFocus = widget->isAncestorOf(focusWidget()) || widget->hasFocus();
    if (hadFocus)
        data->table->setFocus();
    widget->hide(); // it is deleted later, and a dialog may run before
    data->table->setCellWidget(row, column, nullptr);
}

void DesignParameter::openSelection(int row, int column, DesignParameterRow& shown)
{
    auto selection = new dlgSelection(data->doc->index(), data->table);
    selection->fillCombo(shown, plib::hasRemainingRow(*data));
    data->table->setCellWidget(row, column, selection);
    connect(selection, &dlgSelection::signal_groupButtonClicked, this,
            &DesignParameter::slot_openGroups);
    connect(selection, &dlgSelection::signal_selectionComboChanged, this,
            &DesignParameter::slot_selectionComboChanged);
    connect(selection, &dlgSelection::signal_sekGroupButtonClicked, this,
            &DesignParameter::slot_openSekGroups);
    if (QTableWidgetItem* item = data->table->item(row, column))
        item->setText(QString());
}

void DesignParameter::openButton(int row, int column, QTableWidgetItem* item)
{
    using Button = VKD_QT_TableWidgetButton;
    const int id = data->table->getColumnId(column);
    auto button = new Button(data->table, item,
                             id == Table::DirectionAndDistance ? Button::MarkBeside
                                                               : Button::MarkInTheCorner);
    data->table->setCellWidget(row, column, button);
    const auto slot = id == Table::DirectionAndDistance ? &DesignParameter::slot_editButtonClicked
                      : id == Table::Reinforcement
                          ? &DesignParameter::slot_calcReinforcementButtonClicked
                          : &DesignParameter::slot_calcCrackButtonClicked;
    connect(button, &QPushButton::clicked, this, slot);
}

/// The dialog works on the row's record, and changes it after OK alone.
template <class Dialog, typename... Arguments>
void DesignParameter::editRecord(Arguments... arguments)
{
    const int row = data->table->currentRow();
    DesignParameterRow* edited = plib::rowAt(*data, row);
    if (!edited)
        return;
    Dialog dialog(arguments..., &edited->record, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.writeToRecord(&edited->record);
    refreshRows(row);
}

void DesignParameter::slot_editButtonClicked()
{
    editRecord<dlgDistanceDirection>();
}

void DesignParameter::slot_calcReinforcementButtonClicked()
{
    editRecord<dlgReinforcement>(data->doc->index());
}

void DesignParameter::slot_calcCrackButtonClicked()
{
    editRecord<dlgCrackControl>();
}

void DesignParameter::slot_openGroups()
{
    const int row = data->table->currentRow();
    const DesignParameterRow* shown = plib::rowAt(*data, row);
    if (!shown)
        return;
    std::vector<int> checked = shown->groups;
    std::vector<int> used;
    plib::collectUsedGroups(*data, row, used);
    VKD_H_SelGRP_Dialog dialog(data->entriesLoaded, DesignKey, data->doc, checked, used, nullptr,
                               this, "Group Selection");
    const int result = dialog.exec();
    if (result == QDialog::Accepted) {
        std::vector<int> confirmed;
        dialog.getChecked(confirmed);
        takeGroups(row, confirmed);
    } else if (result == PickOutside && data->dialog) {
        // Both, so that the slot is connected once however often the user goes this way.
        disconnect(data->dialog, &VKD_QT_Dialog::isReOpen, this,
                   &DesignParameter::slot_onReopenGroups);
        connect(data->dialog, &VKD_QT_Dialog::isReOpen, this,
                &DesignParameter::slot_onReopenGroups);
        data->dialog->callDone(PickOutside);
    }
}

void DesignParameter::slot_openSekGroups()
{
    const int row = data->table->currentRow();
    const DesignParameterRow* shown = plib::rowAt(*data, row);
    if (!shown || !data->table->item(row, data->table->getColumnNumber(Table::Selection)))
        return;
    std::vector<int> used;
    plib::collectUsedGroups(*data, row, used);
    VKD_H_SecondaryGroupDialog dialog(data->doc, shown->groups, used, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::vector<int> confirmed;
    dialog.getChecked(confirmed);
    takeGroups(data->table->currentRow(), confirmed);
}

/// Replaces the groups of a row and shows them in its editor.
void DesignParameter::takeGroups(int row, const std::vector<int>& groups)
{
    if (DesignParameterRow* changed = plib::rowAt(*data, row))
        changed->groups = groups;
    const DesignParameterRow* sorted = plib::rowAt(*data, row);
    const int column = data->table->getColumnNumber(Table::Selection);
    if (auto editor = qobject_cast<dlgSelection*>(data->table->cellWidget(row, column)))
        editor->fillCombo(*sorted, plib::hasRemainingRow(*data));
    else
        refreshRows(row);
}

/// The entries of the editor are translated in its own context, and compared here in this one: both
/// have to have the same words. The cell's text follows when the cell is left.
void DesignParameter::slot_selectionComboChanged(QString text)
{
    const int row = data->table->currentRow();
    DesignParameterRow* chosen = plib::rowAt(*data, row);
    if (!chosen ||
        !qobject_cast<dlgSelection*>(data->table->cellWidget(row, data->table->currentColumn())))
        return;
    if (text == tr("Remaining Groups"))
        chosen->groups = {-1};
    else if (text == tr("None"))
        chosen->groups.clear();
}

void DesignParameter::slot_onReopenGroups()
{
    std::vector<int> picked;
    if (VKD_H_SelGRP_Dialog::getAniSelectionFromZob(data->doc->index(), picked) == -1)
        return;
    if (isRow(data->table->currentRow()))
        takeGroups(data->table->currentRow(), picked);
}

void DesignParameter::slot_onReopenGroupsSecondary() {}
