#pragma once

#include "vkd_aniview_export.h"

#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>

#include <QSizeF>

#include <memory>

class QPainter;

namespace vkd {
namespace aniview {
class SceneView;
class ScenePainter;
} // namespace aniview
} // namespace vkd

/// The structural model of a project drawn as AnimatorView shows it, but without a widget: on
/// white, with the triad of axes, whole in its middle and at a scale that is asked for. The model
/// is read once.
class VKD_ANIVIEW_EXPORT AnimatorPicture
{
public:
    /// The project at this database index; below 1 there is none.
    explicit AnimatorPicture(int index);
    ~AnimatorPicture();

    bool isEmpty() const;
    /// How wide and high the box of the model is when looked at from the camera's direction,
    /// metres.
    QSizeF sizeSeen(const vkd::dbo::Camera& camera) const;

    /// The pixels to a metre at which the model fills a picture of this size (pixels) when looked
    /// at from the camera's direction.
    double fittingScale(const vkd::dbo::Camera& camera, const QSizeF& size) const;
    /// Draws into the rectangle of this size at the painter's origin; what is larger is cut off.
    /// Of the camera, direction and roll count. `scale` is in pixels to a metre, above 0. Pixels
    /// are those of a screen of 96 dpi: a painter that is scaled draws lines and symbols so wide.
    void paint(QPainter& painter, const QSizeF& size, const vkd::dbo::Camera& camera, double scale);

private:
    vkd::dbo::Camera wholeModel(const vkd::dbo::Camera& camera) const;

    std::unique_ptr<vkd::aniview::SceneView> m_scene;
    std::unique_ptr<vkd::aniview::ScenePainter> m_painter;
};
