#include "exchange/patchRows.h"

#include "exchange/rowTable.h"
#include "exchange/TableText.h"
#include "record/designRecord.h"

namespace plib {

namespace {
/// Returns the record with the copied parameters. Distances are not applied if this kind of system
/// has none, because they would not be stored.
tagZOB_QUAD_RIM patched(tagZOB_QUAD_RIM record, const RowPatch& copied, int kindOfSystem)
{
    copied.applyTo(record);
    if (!hasDistances(kindOfSystem))
        for (RealField field : fields::Distances)
            record.*field = NotSet;
    return record;
}
} // namespace

QStringList patchRows(const std::vector<RowPatch>& copied, int kindOfSystem, DesignRowList* rows)
{
    if (copied.empty() || (copied.size() != 1 && copied.size() != rows->size()))
        return {TableText::tr("%1 rows are copied and %2 are selected. Select as many rows as are "
                              "copied, or copy a single row.")
                    .arg(QString::number(copied.size()), QString::number(rows->size()))};
    DesignRowList changed = *rows;
    QStringList faults;
    for (std::size_t i = 0; i < changed.size(); ++i) {
        const RowPatch& patch = copied[copied.size() == 1 ? 0 : i];
        changed[i].record = patched(changed[i].record, patch, kindOfSystem);
        const QString fault = limitFault(changed[i].record, patch.line);
        if (!fault.isEmpty() && !faults.contains(fault))
            faults << fault;
    }
    if (faults.isEmpty())
        *rows = std::move(changed);
    return faults;
}

std::optional<LimitFault> limitFault(const DesignRowList& rows, const std::set<int>& numbers,
                                     const RowPatch& patch)
{
    for (const LimitPair& pair : LimitPairs)
        for (int number : numbers) {
            tagZOB_QUAD_RIM record = rows[std::size_t(number)].record;
            patch.applyTo(record);
            const bool isChanged = patch.has(pair.minimum) || patch.has(pair.maximum);
            if (isChanged && !isInOrder(record.*pair.minimum, record.*pair.maximum))
                return LimitFault{number, pair, record.*pair.minimum, record.*pair.maximum};
        }
    return std::nullopt;
}

} // namespace plib
