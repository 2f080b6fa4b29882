#pragma once

#include <functional>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// Sets entries of a page of the project at this database index, within a change. Returns whether
/// all were accepted.
bool putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set);

} // namespace workbench
