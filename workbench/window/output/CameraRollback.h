#pragma once

#include <vkd_dbo_camera.h>

namespace workbench {

/// Restores the desktop's camera, which is the view that the user has chosen, at the end of its
/// life. Meanwhile a page may store the camera of its own view instead, even of a fixed one.
class CameraRollback
{
public:
    CameraRollback() = default;
    ~CameraRollback() { vkd::dbo::setCamera(vkd::dbo::DesktopCamera, m_camera); }
    CameraRollback(const CameraRollback&) = delete;
    CameraRollback& operator=(const CameraRollback&) = delete;

private:
    const vkd::dbo::Camera m_camera = vkd::dbo::camera(vkd::dbo::DesktopCamera);
};

} // namespace workbench
