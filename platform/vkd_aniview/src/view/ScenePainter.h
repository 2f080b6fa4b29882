#pragma once

#include "view/GroupColours.h"
#include "view/Picture.h"

#include <limits>
#include <memory>

class QPainter;

namespace vkd {
namespace aniview {

/// Draws an image of a geometry. Caches pens and brushes until colours or marks change.
class ScenePainter
{
public:
    /// A range of the items in painting order.
    struct Part
    {
        size_t begin;
        size_t end;
    };

    /// Discards the cached pens and brushes. Call this after the palette, the geometry or the marks
    /// have changed.
    void forgetColours() { m_colours.reset(); }

    void paint(QPainter& painter, const QPalette& palette, const ModelGeometry& geometry,
               const Picture& picture, const Projection& projection, const GroupMarks& marks,
               const Part& part = {0, std::numeric_limits<size_t>::max()});

private:
    struct Frame;

    void prepare(const QPalette& palette, const ModelGeometry& geometry,
                 const Projection& projection, const GroupMarks& marks);
    void drawFace(Frame& frame, const Face& face) const;
    void drawStrongEdges(Frame& frame, const Face& face, const QPointF* corners) const;
    void drawEdgeOn(Frame& frame, const Face& face, const QPointF* corners) const;
    void drawLine(Frame& frame, const Line& line) const;

    std::unique_ptr<GroupColours> m_colours;
    int m_meshStep = -1;
};

} // namespace aniview
} // namespace vkd
