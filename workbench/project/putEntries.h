#pragma once

#include <vkd_status.h>

#include <functional>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// Sets entries of a page of the project at this database index. Call it in a transaction. Returns
/// the status of VKD_H_ProjectDialogPage::save().
VkdStatus putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set);

} // namespace workbench
