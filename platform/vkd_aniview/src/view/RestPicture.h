#pragma once

#include "view/ScenePainter.h"

#include <QImage>

namespace vkd {
namespace aniview {

/// The full image of a model. It is painted in steps, so that the window remains responsive, and
/// cached, so that the model is not painted again each time a part of the view is exposed.
class RestPicture
{
public:
    /// Discards the image. Call this after any change to the scene.
    void drop() { m_image = QImage(); }

    /// Paints items for a short time. Returns true if the image is complete.
    bool paintSome(ScenePainter& painter, const QSize& size, qreal pixelRatio,
                   const QPalette& palette, const ModelGeometry& geometry, const Picture& picture,
                   const Projection& projection, const GroupMarks& marks);
    /// Returns true if the image is complete and was painted for this pixel ratio.
    bool isComplete(qreal pixelRatio) const { return m_isComplete && isFor(pixelRatio); }
    const QImage& image() const { return m_image; }

private:
    bool isFor(qreal pixelRatio) const
    {
        return !m_image.isNull() && m_image.devicePixelRatio() == pixelRatio;
    }

    QImage m_image;
    size_t m_painted = 0; // items
    bool m_isComplete = false;
};

} // namespace aniview
} // namespace vkd
