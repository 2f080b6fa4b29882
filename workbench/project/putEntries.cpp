#include "project/putEntries.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

VkdStatus putEntries(ZobHandle project, int page,
                     const std::function<void(VKD_H_ProjectDialogPage&)>& set)
{
    VKD_H_ProjectDialogPage entries(project, page);
    set(entries);
    return entries.save();
}

} // namespace workbench
