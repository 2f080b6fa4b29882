#include "project/putEntries.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

bool putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set)
{
    VKD_H_ProjectDialogPage entries(index, page);
    set(entries);
    return entries.save().isOk();
}

} // namespace workbench
