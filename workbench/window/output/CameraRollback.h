#pragma once

#include <vkd_dbo_camera.h>

namespace workbench {

/// Restores the desktop's camera, which is the user-defined view, when the object is destroyed.
/// Until then, a page may overwrite the desktop's camera with the camera of its own view, even if
/// that is a fixed view.
class CameraRollback
{
public:
    CameraRollback() = default;
    ~CameraRollback() { vkd::dbo::setCamera(ZobHandle::scratch(), m_camera); }
    CameraRollback(const CameraRollback&) = delete;
    CameraRollback& operator=(const CameraRollback&) = delete;

private:
    const vkd::dbo::Camera m_camera = vkd::dbo::camera(ZobHandle::scratch());
};

} // namespace workbench
