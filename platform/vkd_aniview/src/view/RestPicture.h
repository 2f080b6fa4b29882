#pragma once

#include "view/ScenePainter.h"

#include <QImage>

namespace vkd {
namespace aniview {

/// The full picture of a large model, painted in steps, so that the window stays responsive.
class RestPicture
{
public:
    /// Drops the picture after any change of the scene.
    void drop() { m_image = QImage(); }

    /// Paints items for a short time. Returns true if the picture is complete.
    bool paintSome(ScenePainter& painter, const QSize& size, qreal pixelRatio,
                   const QPalette& palette, const ModelGeometry& geometry, const Picture& picture,
                   const Projection& projection, const GroupMarks& marks);
    bool isComplete() const { return !m_image.isNull() && m_isComplete; }
    const QImage& image() const { return m_image; }

private:
    QImage m_image;
    size_t m_painted = 0; // items
    bool m_isComplete = false;
};

} // namespace aniview
} // namespace vkd
