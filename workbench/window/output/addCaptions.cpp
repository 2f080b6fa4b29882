#include "window/output/addCaptions.h"

#include "sheet/sheetCaptions.h"
#include "window/output/OutputDialog.h"

#include <vkd_dbo_model.h>

namespace workbench {

void addCaptions(SheetPlan* plan, OutputDialog* dialog, ZobHandle project)
{
    if (dialog)
        setCaptions(plan, dialog->captions());
    QHash<int, QString> titles;
    for (const vkd::dbo::LoadCase& loadCase : vkd::dbo::readLoadCases(project))
        titles.insert(loadCase.number, loadCase.title);
    setLoadCaseTitles(plan, titles);
}

} // namespace workbench
