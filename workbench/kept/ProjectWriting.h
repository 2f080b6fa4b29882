#pragma once

#include <vkd_zob.h>
#include <ZobTransaction.h>

#include <functional>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// A change of a project, of which all is stored or nothing. It begins with the object, which waits
/// for other programs as long as the store does. What is read from then on stays as it is until
/// finish(); without it nothing is stored.
class ProjectWriting
{
public:
    /// Of the project at this database index.
    explicit ProjectWriting(int index);

    /// Why the change could not begin, VKD_ZOB_OK if it did.
    cd_error_t status() const { return m_change.status().code; }
    /// Stores what was put, unless it is not the whole change. The result is VKD_ZOB_OK, or why
    /// nothing is stored.
    cd_error_t finish(bool isWhole = true);

private:
    ZobTransaction m_change;
};

/// Sets entries of a page of the project and stores them, in a change of their own. The result is a
/// VkdZobStatus.
cd_error_t storeEntries(int index, int page,
                        const std::function<void(VKD_H_ProjectDialogPage&)>& set);

/// Whether the project can be read at present: VKD_ZOB_OK, or why not.
cd_error_t readingStatus(int index);

} // namespace workbench
