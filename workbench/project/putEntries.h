#pragma once

#include <vkd_status.h>
#include <ZobHandle.h>

#include <functional>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// Sets entries of a dialog page in the project. Call it within a transaction. Returns the status
/// of VKD_H_ProjectDialogPage::save().
VkdStatus putEntries(ZobHandle project, int page,
                     const std::function<void(VKD_H_ProjectDialogPage&)>& set);

} // namespace workbench
