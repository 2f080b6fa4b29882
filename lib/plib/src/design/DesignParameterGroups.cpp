// The part of DesignParameter that changes the groups of rows.

#include "design/DesignParameter.h"

#include "design/HostRows.h"
#include "design/RowsHistory.h"
#include "dialogs/dialogFrame.h"
#include "dialogs/dlgSelection.h"
#include "record/designRows.h"
#include "record/groupsNotice.h"
#include "table/DesignParameterTable.h"
#include "table/sharedGroupMarks.h"

#include <vkd_dbo_packedNames.h>
#include <VKD_H_SecondaryGroupDialog.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_SignalBlocker.h>
#include <vkd_zob_keys.h>

#include <QPointer>

#include <algorithm>
#include <iterator>

using plib::DesignParameterRow;
using plib::RecordedStep;
using plib::RowsStep;
using Table = DesignParameterTable;

namespace {
/// Returns the result of a group dialog, or QDialog::Rejected if the host has closed the page
/// during the dialog.
int runDialog(QDialog& dialog, DesignParameter* parent)
{
    plib::setHelpTopic(&dialog, "GROUPS");
    const QPointer<DesignParameter> page(parent);
    const int result = dialog.exec();
    if (!page)
        return QDialog::Rejected;
    page->focusTable();
    return result;
}
} // namespace

void DesignParameter::slot_openGroups()
{
    const int row = data->table->currentRow();
    const DesignParameterRow* shown = plib::rowAt(*data, row);
    if (!shown)
        return;
    std::vector<int> checked = shown->groups;
    std::vector<int> used;
    plib::collectUsedGroups(*data, row, used);
    VKD_H_SelGRP_Dialog dialog(data->entriesLoaded, vkd::zob::keys::Design.key1, data->doc, checked,
                               used, nullptr, this, "Group Selection");
    const int result = runDialog(dialog, this);
    if (result == QDialog::Accepted) {
        std::vector<int> confirmed;
        dialog.getChecked(confirmed);
        takeGroups(row, confirmed);
    } else if (result == VKD_H_SelGRP_Dialog::PickOutside && data->dialog) {
        // Disconnect first, so that the slot is connected only once even if the user picks
        // repeatedly.
        disconnect(data->dialog, &VKD_QT_Dialog::isReOpen, this,
                   &DesignParameter::slot_onReopenGroups);
        connect(data->dialog, &VKD_QT_Dialog::isReOpen, this,
                &DesignParameter::slot_onReopenGroups);
        data->dialog->callDone(VKD_H_SelGRP_Dialog::PickOutside);
    } else if (result == VKD_H_SelGRP_Dialog::PickOutside) {
        pickBesidePage(row);
    }
}

/// If the host lets the user pick groups while the page stays open, assigns the groups that are
/// checked in the dialog. Groups that the dialog does not show are preserved if nothing else has
/// changed.
void DesignParameter::pickBesidePage(int row)
{
    const auto host = findChild<plib::HostRows*>(QString(), Qt::FindDirectChildrenOnly);
    const DesignParameterRow* shown = plib::rowAt(*data, row);
    if (!shown || !host->isPickingPossible())
        return;
    std::vector<int> checked, present;
    VKD_H_SelGRP_Dialog::getAniSelectionFromZob(VKD_H_SelGRP_Dialog::StartOfPicking, checked);
    std::copy_if(shown->groups.begin(), shown->groups.end(), std::back_inserter(present),
                 vkd::dbo::isPrimaryGroup);
    if (checked != present)
        takeGroups(row, checked);
    Q_EMIT host->pickingRequested();
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
    if (runDialog(dialog, this) != QDialog::Accepted)
        return;
    std::vector<int> confirmed;
    dialog.getChecked(confirmed);
    takeGroups(row, confirmed);
}

/// Replaces the groups of a row and shows them in its editor.
void DesignParameter::takeGroups(int row, const std::vector<int>& groups)
{
    DesignParameterRow* changed = plib::rowAt(*data, row);
    if (!changed)
        return;
    const std::vector<int> before = changed->groups;
    {
        const RecordedStep step(this, RowsStep::Groups, {row});
        changed->groups = groups;
        std::sort(changed->groups.begin(), changed->groups.end());
        const int column = data->table->getColumnNumber(Table::Selection);
        if (auto editor = qobject_cast<dlgSelection*>(data->table->cellWidget(row, column)))
            editor->fillCombo(*changed, plib::hasRemainingRow(*data));
        else
            refreshRows(row);
        showSharedGroups();
    }
    showNotice(plib::groupsNotice(data->rows, row, before));
}

/// Updates the marks in all rows, because a change to the groups of one row may affect any other.
void DesignParameter::showSharedGroups()
{
    const VKD_QT_SignalBlocker blocker(data->table);
    plib::markSharedGroups(data->table, data->rows);
    showSharedGroupsInEditor(editRow);
}

/// Shows the mark in the editor, because the editor covers its cell.
void DesignParameter::showSharedGroupsInEditor(int row)
{
    const int column = data->table->getColumnNumber(Table::Selection);
    const QTableWidgetItem* item = data->table->item(row, column);
    const auto editor = qobject_cast<dlgSelection*>(data->table->cellWidget(row, column));
    if (item && editor)
        editor->setNote(item->toolTip());
}

/// Compares the text with translations from the context of this class. dlgSelection translates its
/// entries in its own context, so both translations must be identical. The text of the cell is
/// updated when the user leaves the cell.
void DesignParameter::slot_selectionComboChanged(QString text)
{
    const int row = data->table->currentRow();
    DesignParameterRow* chosen = plib::rowAt(*data, row);
    if (!chosen ||
        !qobject_cast<dlgSelection*>(data->table->cellWidget(row, data->table->currentColumn())))
        return;
    const RecordedStep step(this, RowsStep::Groups, {row});
    if (text == tr("Remaining Groups"))
        chosen->groups = {-1};
    else if (text == tr("None"))
        chosen->groups.clear();
    showSharedGroups();
}

void DesignParameter::slot_onReopenGroups()
{
    std::vector<int> picked;
    if (VKD_H_SelGRP_Dialog::getAniSelectionFromZob(data->doc->index(), picked) == -1)
        return;
    if (isRow(data->table->currentRow()))
        takeGroups(data->table->currentRow(), picked);
}

/// Intentionally empty: secondary groups cannot be picked in the 3D view.
void DesignParameter::slot_onReopenGroupsSecondary() {}
