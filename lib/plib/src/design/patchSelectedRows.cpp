#include "design/patchSelectedRows.h"

#include "design/DesignParameter.h"
#include "design/RowsHistory.h"
#include "exchange/patchRows.h"
#include "table/DesignParameterTable.h"

namespace plib {

/// Replaces the rows from the first to the last selected one.
QStringList patchSelectedRows(DesignParameter* page, const std::vector<RowPatch>& patches,
                              const QStringList& stepName)
{
    const std::set<int> selected = page->state().table->getSelectetRows();
    const DesignRowList& rows = page->state().rows;
    DesignRowList changed;
    for (int row : selected)
        changed.push_back(rows[std::size_t(row)]);
    const QStringList faults = patchRows(patches, page->state().kindOfSystem, &changed);
    if (!faults.isEmpty())
        return faults;
    const RecordedStep step(page, stepName, selected);
    const int first = *selected.begin();
    DesignRowList range(rows.begin() + first, rows.begin() + *selected.rbegin() + 1);
    auto next = changed.begin();
    for (int row : selected)
        range[std::size_t(row - first)] = *next++;
    page->replaceRows(first, int(range.size()), range, TableSelection(*page->state().table));
    return {};
}

} // namespace plib
