#pragma once

#include "vkd_aniview_export.h"

#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>
#include <ZobHandle.h>

#include <QSizeF>

#include <memory>

class QPainter;

namespace vkd {
namespace aniview {
class SceneView;
class ScenePainter;
} // namespace aniview
} // namespace vkd

/// Paints the structural model of a project like AnimatorView, but without a widget: centred on a
/// white background, with the axis triad and at a given scale. The model is read once, in the
/// constructor.
class VKD_ANIVIEW_EXPORT AnimatorPicture
{
public:
    /// Reads the model of the project. If there is none, the image is empty.
    explicit AnimatorPicture(ZobHandle project);
    ~AnimatorPicture();

    bool isEmpty() const;
    /// Returns the width and height in metres of the model's bounding box as seen from the camera's
    /// direction.
    QSizeF sizeSeen(const vkd::dbo::Camera& camera) const;

    /// Returns the scale in pixels per metre at which the model, seen from the camera's direction,
    /// fills an image of this size in pixels.
    double fittingScale(const vkd::dbo::Camera& camera, const QSizeF& size) const;
    /// Paints into the rectangle of this size at the painter's origin and clips to it. Only the
    /// direction and the roll of the camera are used. `scale` is in pixels per metre and must be
    /// positive. Line widths and symbols are designed for 96 dpi; a scaled painter also scales
    /// them.
    void paint(QPainter& painter, const QSizeF& size, const vkd::dbo::Camera& camera, double scale);

private:
    vkd::dbo::Camera wholeModel(const vkd::dbo::Camera& camera) const;

    std::unique_ptr<vkd::aniview::SceneView> m_scene;
    std::unique_ptr<vkd::aniview::ScenePainter> m_painter;
};
