#pragma once

#include <vkd_zob.h>
#include <ZobTransaction.h>

#include <functional>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// A change of a project that is stored completely or not at all. It begins with the construction,
/// which waits for other programs as long as the store does. Reads see one state of the project
/// until finish(); without finish() nothing is stored.
class ProjectWriting
{
public:
    /// Begins a change of the project at this database index.
    explicit ProjectWriting(int index);

    /// Returns why the change could not begin, VKD_ZOB_OK if it did.
    cd_error_t status() const { return m_change.status().code; }
    /// Stores the change if it is complete, and rolls it back otherwise. Returns VKD_ZOB_OK, or why
    /// nothing is stored.
    cd_error_t finish(bool isWhole = true);

private:
    ZobTransaction m_change;
};

/// Sets entries of a page of the project and puts them there. Returns whether all were accepted.
bool putEntries(int index, int page, const std::function<void(VKD_H_ProjectDialogPage&)>& set);

/// Returns VKD_ZOB_OK if the project can be read now, or why not.
cd_error_t readingStatus(int index);

} // namespace workbench
