#pragma once

#include <vkd_zob.h>

namespace workbench {

/// Keeps all programs from writing into a project while it lives, so that what is read of it
/// belongs together. It does not wait for a program that is writing.
class ProjectHold
{
public:
    /// Of the project at this database index.
    explicit ProjectHold(int index);
    ~ProjectHold();
    ProjectHold(const ProjectHold&) = delete;
    ProjectHold& operator=(const ProjectHold&) = delete;

    /// VKD_ZOB_OK, or why the project is not held.
    cd_error_t status() const;

private:
    int m_index;
    int m_key1 = 0;
    int m_key2 = 0;
    cd_error_t m_status;
};

} // namespace workbench
