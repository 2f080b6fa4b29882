#include "sheet/readSheetPlan.h"

#include "sheet/SheetPlanCache.h"

namespace workbench {

SheetPlan readSheetPlan(const QString& script)
{
    return SheetPlanCache().planOf(script);
}

} // namespace workbench
