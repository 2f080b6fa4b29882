// The part of DesignParameter for cell editors and the dialogs that they open.

#include "design/DesignParameter.h"

#include "design/GroupsEntry.h"
#include "design/RowEditing.h"
#include "dialogs/dlgCrackControl.h"
#include "dialogs/dlgDistanceDirection.h"
#include "dialogs/dlgReinforcement.h"
#include "dialogs/dlgSelection.h"
#include "fields/unusedDistances.h"
#include "record/designRecord.h"
#include "record/designRows.h"
#include "table/DesignParameterTable.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_SignalBlocker.h>
#include <VKD_QT_TableWidgetButton.h>

#include <QApplication>

#include <type_traits>

using plib::DesignParameterRow;
using plib::RowsStep;
using Table = DesignParameterTable;

namespace {
/// Ids of combo box entries that set the groups of a row when the user leaves the cell. The entries
/// of dlgSelection have no ids, because at that time the user's selection is already stored in the
/// row.
enum SelectionId {
    NoneId = 0,
    RemainingId = 1,
};
} // namespace

/// Moves the editor to the current cell. If a cell is selected again, its editor is closed and not
/// reopened. Selecting a cell in a row that is not designed also closes the editor. However, the
/// cell of the closed editor is still stored, so that returning to this cell counts as selecting it
/// again.
void DesignParameter::slot_editCellWidget()
{
    Table* table = data->table;
    const int row = table->currentRow();
    const int column = table->currentColumn();
    if (row == 0 && column == 0)
        return; // no editor for this cell; an open editor elsewhere remains
    if (row == editRow && column == editColumn && hasFocusInEditor())
        return; // the user has clicked in the editor, which selects its cell
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

bool DesignParameter::hasFocusInEditor() const
{
    const QWidget* editor = data->table->cellWidget(editRow, editColumn);
    const QWidget* focused = QApplication::focusWidget();
    return editor && focused && (editor == focused || editor->isAncestorOf(focused));
}

/// An editor may remain open while another cell is current. If the editor is used, its cell must
/// become current again, because the slots operate on the current row. Several selected rows stay
/// selected if the cell is one of theirs.
void DesignParameter::makeEditedCellCurrent()
{
    if (data->table->currentRow() == editRow && data->table->currentColumn() == editColumn)
        return;
    const VKD_QT_SignalBlocker blocker(data->table);
    const bool isSelected = data->table->getSelectetRows().count(editRow) > 0;
    data->table->setCurrentCell(editRow, editColumn,
                                isSelected ? QItemSelectionModel::NoUpdate
                                           : QItemSelectionModel::ClearAndSelect);
}

/// While the user selects several rows with the mouse, the current cell changes after the
/// selection. The editor then opens in the last cell, under the mouse.
void DesignParameter::followCurrentCell()
{
    const Table* table = data->table;
    const bool isThere = table->currentRow() == editRow && table->currentColumn() == editColumn;
    if (!isThere && table->getSelectetRows().size() > 1)
        slot_editCellWidget();
}

/// Text that is being typed in the editor is applied first.
void DesignParameter::closeCellWidget()
{
    if (hasFocusInEditor())
        data->table->setFocus();
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
    widget->hide(); // deleted later, possibly after a dialog has been closed
    data->table->setCellWidget(row, column, nullptr);
}

void DesignParameter::openSelection(int row, int column, DesignParameterRow& shown)
{
    auto selection = new dlgSelection(data->doc->index(), data->table);
    selection->fillCombo(shown, plib::hasRemainingRow(*data));
    layOver(row, column, selection);
    findChild<plib::GroupsEntry*>()->listenTo(selection);
    connect(selection, &dlgSelection::signal_groupButtonClicked, this,
            &DesignParameter::slot_openGroups);
    connect(selection, &dlgSelection::signal_selectionComboChanged, this,
            &DesignParameter::slot_selectionComboChanged);
    connect(selection, &dlgSelection::signal_sekGroupButtonClicked, this,
            &DesignParameter::slot_openSekGroups);
    if (QTableWidgetItem* item = data->table->item(row, column))
        item->setText(QString());
    showSharedGroupsInEditor(row);
}

void DesignParameter::openButton(int row, int column, QTableWidgetItem* item)
{
    using Button = VKD_QT_TableWidgetButton;
    const struct
    {
        Button::ButtonModus modus;
        void (DesignParameter::*slot)();
    } kinds[] = {
        {Button::MarkBeside, &DesignParameter::slot_editButtonClicked},
        {Button::MarkInTheCorner, &DesignParameter::slot_calcReinforcementButtonClicked},
        {Button::MarkInTheCorner, &DesignParameter::slot_calcCrackButtonClicked},
    };
    const auto& kind = kinds[data->table->getColumnId(column) - Table::DirectionAndDistance];
    auto button = new Button(data->table, item, kind.modus);
    button->setFocusPolicy(Qt::TabFocus); // on focus, the view would select only this cell
    layOver(row, column, button);
    connect(button, &QPushButton::pressed, this, [this] {
        makeEditedCellCurrent();
        if (!hasFocusInEditor()) // a button that loses the focus is released
            data->table->setFocus();
    });
    connect(button, &QPushButton::clicked, this, kind.slot);
}

/// Places an editor over a cell, directly after the table in the tab order.
void DesignParameter::layOver(int row, int column, QWidget* editor)
{
    data->table->setCellWidget(row, column, editor);
    QWidget* before = data->table;
    QList<QWidget*> stops = editor->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    stops.prepend(editor);
    for (QWidget* stop : qAsConst(stops))
        if (stop->focusPolicy() & Qt::TabFocus) {
            setTabOrder(before, stop);
            before = stop;
        }
}

/// Opens a dialog for the record of the current row or the records of the selected rows. They are
/// changed only after OK.
template <class Dialog, typename... Arguments>
void DesignParameter::editRecord(RowsStep name, Arguments... arguments)
{
    plib::RowEditing editing(this, name);
    tagZOB_QUAD_RIM* record = editing.record();
    if (!record)
        return;
    Dialog dialog(arguments..., record, this);
    plib::RecordDialog functions = plib::recordDialog(&dialog);
    if constexpr (std::is_same_v<Dialog, dlgDistanceDirection>)
        if (!plib::hasDistances(data->kindOfSystem))
            functions.recordShown = [&dialog] { plib::markUnusedDistances(dialog); };
    editing.run(functions);
}

void DesignParameter::slot_editButtonClicked()
{
    editRecord<dlgDistanceDirection>(RowsStep::DirectionAndDistance);
}

void DesignParameter::slot_calcReinforcementButtonClicked()
{
    editRecord<dlgReinforcement>(RowsStep::Reinforcement, data->doc->index());
}

void DesignParameter::slot_calcCrackButtonClicked()
{
    editRecord<dlgCrackControl>(RowsStep::CrackControl);
}

/// The window may not be active yet.
void DesignParameter::focusTable()
{
    const QWidget* focused = window()->focusWidget();
    if (focused && data->table->viewport()->isAncestorOf(focused))
        data->table->setFocus();
}
