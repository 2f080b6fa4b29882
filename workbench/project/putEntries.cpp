#include "project/putEntries.h"

#include <VKD_H_ProjectDialogPage.h>

namespace workbench {

VkdStatus putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set)
{
    VKD_H_ProjectDialogPage entries(index, page);
    set(entries);
    return entries.save();
}

} // namespace workbench
