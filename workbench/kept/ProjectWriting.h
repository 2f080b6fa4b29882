#pragma once

#include <vkd_zob.h>

class VKD_H_ProjectDialogPage;

namespace workbench {

/// A change of a project, of which all is stored or nothing. It begins with the object, which waits
/// for other programs as long as the store does, and ends with finish() or with the object.
class ProjectWriting
{
public:
    /// Of the project at this database index.
    explicit ProjectWriting(int index);
    ~ProjectWriting();
    ProjectWriting(const ProjectWriting&) = delete;
    ProjectWriting& operator=(const ProjectWriting&) = delete;

    /// Why the change could not begin, VKD_ZOB_OK if it did.
    cd_error_t status() const { return m_status; }
    /// Stores what was put; the result is why that failed, also a put before.
    cd_error_t finish();

private:
    int m_index;
    bool m_isOpen = true;
    cd_error_t m_status;
};

/// Stores the entries of a page of the project in a change of their own. The result is a
/// VkdZobStatus.
cd_error_t storeEntries(int index, VKD_H_ProjectDialogPage& entries);

/// Whether the project can be read at present: VKD_ZOB_OK, or why not.
cd_error_t readingStatus(int index);

} // namespace workbench
