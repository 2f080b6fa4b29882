#pragma once

#include <vkd_dbo_camera.h>

namespace workbench {

/// Restores the desktop's camera, which the user has set, after a page stored the camera of its
/// view in its place.
class UsersCamera
{
public:
    UsersCamera() = default;
    ~UsersCamera() { vkd::dbo::setCamera(vkd::dbo::DesktopCamera, m_camera); }
    UsersCamera(const UsersCamera&) = delete;
    UsersCamera& operator=(const UsersCamera&) = delete;

private:
    const vkd::dbo::Camera m_camera = vkd::dbo::camera(vkd::dbo::DesktopCamera);
};

} // namespace workbench
