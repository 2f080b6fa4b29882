// The part of DesignParameter that replaces whole rows, for undo and the clipboard.

#include "design/DesignParameter.h"

#include "design/RowsHistory.h"
#include "design/RowsNotice.h"
#include "table/DesignParameterTable.h"

#include <VKD_QT_SignalBlocker.h>

#include <algorithm>

namespace {
bool haveSameGroups(const plib::DesignRowList& rows, int first, int count,
                    const plib::DesignRowList& by)
{
    return count == int(by.size()) &&
           std::equal(by.begin(), by.end(), rows.begin() + first,
                      [](const plib::DesignParameterRow& a, const plib::DesignParameterRow& b) {
                          return a.groups == b.groups;
                      });
}
} // namespace

void DesignParameter::refresh(const std::set<int>& rows)
{
    for (int row : rows)
        refreshRows(row);
}

void DesignParameter::showNotice(const QString& text)
{
    findChild<plib::RowsNotice*>()->setText(text);
}

/// Closes the editor first, because it belongs to a row. Restoring the selection reopens the
/// editor.
void DesignParameter::replaceRows(int first, int count, const plib::DesignRowList& by,
                                  const plib::TableSelection& selection)
{
    const int replaced = std::min(count, int(by.size()));
    const bool isSameGroups = haveSameGroups(data->rows, first, count, by);
    closeCellWidget();
    editRow = editColumn = -1;
    {
        const VKD_QT_SignalBlocker blocker(data->table); // until the rows match the table again
        plib::replaceRows(data->rows, first, count, by);
        setTableRowCount(int(data->rows.size()), first + replaced);
        for (int row = first; row < first + int(by.size()); ++row)
            drawRow(data->rows[std::size_t(row)], row, row >= first + replaced);
        data->table->fitRows(first, first + int(by.size()) - 1);
        if (!isSameGroups)
            showSharedGroups();
        selection.restore(data->table);
    }
    if (data->table->selectionModel()->hasSelection())
        slot_editCellWidget();
    if (count != int(by.size()))
        Q_EMIT signal_rowCountChanged(data->table->rowCount());
}

/// Adds or removes rows of the table at `first`, in one pass.
void DesignParameter::setTableRowCount(int count, int first)
{
    const int added = count - data->table->rowCount();
    if (added > 0)
        data->table->model()->insertRows(first, added);
    else if (added < 0)
        data->table->model()->removeRows(first, -added);
}

void DesignParameter::restartHistory()
{
    findChild<plib::RowsHistory*>(QString(), Qt::FindDirectChildrenOnly)->restart();
}
