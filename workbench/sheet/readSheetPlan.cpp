#include "sheet/readSheetPlan.h"

#include "sheet/SheetPlanReader.h"

namespace workbench {

SheetPlan readSheetPlan(const QString& script)
{
    SheetPlanReader reader;
    int start = 0;
    while (start < script.size()) {
        int end = script.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            end = script.size();
        reader.readLine(QStringView(script).mid(start, end - start));
        start = end + 1;
    }
    return reader.plan();
}

} // namespace workbench
