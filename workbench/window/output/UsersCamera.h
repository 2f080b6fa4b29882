#pragma once

#include <vkd_dbo_camera.h>

namespace workbench {

/// Keeps the desktop's camera, the user's own, while a page stores that of its view in its place,
/// also that of a fixed view.
class UsersCamera
{
public:
    UsersCamera() = default;
    ~UsersCamera() { vkd::dbo::setCamera(Database, m_camera); }
    UsersCamera(const UsersCamera&) = delete;
    UsersCamera& operator=(const UsersCamera&) = delete;

    static constexpr int Database = 0; ///< the index at which it lies

private:
    const vkd::dbo::Camera m_camera = vkd::dbo::camera(Database);
};

} // namespace workbench
