#include "view/ScenePainter.h"

#include "view/symbols.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace vkd {
namespace aniview {

namespace {
constexpr int MeshSteps = 8;
constexpr double MostSymbol = 9.0; // pixels
constexpr double EdgeOn = 0.02;    // sine of the angle below which a face is drawn edge-on

/// Line elements have no width in the model. Each kind of line element has a typical width in
/// metres, limited to a range in pixels.
struct LineLook
{
    double metres;
    double least;
    double most;
};
constexpr LineLook LineLooks[LineKindCount] = {
    {0.30, 2.6, 9.0}, {0.15, 1.8, 5.0}, {0.06, 1.2, 3.0}, {0.0, 1.2, 1.2}, {0.0, 1.0, 1.0}};

double component(const Position& direction, const float* normal)
{
    return direction[0] * normal[0] + direction[1] * normal[1] + direction[2] * normal[2];
}

/// Returns the mean edge length of the faces in pixels.
double cellPixels(const ModelGeometry& geometry, const Projection& projection)
{
    return geometry.meshCell * geometry.unit * projection.scale();
}

/// Moves the corners of a face outwards by about the width of an outline, because antialiased faces
/// without outlines would leave gaps. Drawing outlines in the colours of the faces would take twice
/// as long.
void grow(const QPointF* corners, int count, QPointF* grown)
{
    constexpr double Way = 0.7; // pixels, distance to the corner of a one-pixel outline
    QPointF middle;
    for (int i = 0; i < count; ++i)
        middle += corners[i] / count;
    for (int i = 0; i < count; ++i) {
        const QPointF out = corners[i] - middle;
        const double length = std::hypot(out.x(), out.y());
        grown[i] = length > 0.0 ? corners[i] + Way / length * out : corners[i];
    }
}

/// Returns the direction of the light, which comes from over the viewer's left shoulder.
Position lightOf(const ViewAxes& axes)
{
    const Position sum = along(along(along({}, 0.8, axes.eye), 0.5, axes.up), -0.33, axes.right);
    return along({}, 1.0 / std::sqrt(dot(sum, sum)), sum);
}
} // namespace

/// The state during the painting of one image, except for the colours.
struct ScenePainter::Frame
{
    Frame(QPainter& p, const Picture& shown, const Projection& view, double cellPixels)
        : painter(p)
        , picture(shown)
        , projection(view)
        , light(lightOf(view.axes()))
        , symbolSize(cellPixels > 0 ? qBound(5.0, 0.5 * cellPixels, MostSymbol) : MostSymbol)
    {
        for (int i = 0; i < LineKindCount; ++i) {
            const LineLook& look = LineLooks[i];
            widths[size_t(i)] = qBound(look.least, look.metres * view.scale(), look.most);
        }
    }

    QPainter& painter;
    const Picture& picture;
    const Projection& projection;
    const Position light;
    const double symbolSize;
    const bool isSmooth = painter.testRenderHint(QPainter::Antialiasing);
    std::array<double, LineKindCount> widths{};
    // The part and the shade whose pen and brush are currently set, or -1. Setting them again
    // would take time.
    int part = -1;
    int shade = -1;
};

void ScenePainter::paint(QPainter& painter, const QPalette& palette, const ModelGeometry& geometry,
                         const Picture& picture, const Projection& projection,
                         const GroupMarks& marks, const Part& part)
{
    prepare(palette, geometry, projection, marks);
    Frame frame(painter, picture, projection, cellPixels(geometry, projection));
    const size_t faces = geometry.faces.size();
    const size_t lines = geometry.lines.size();
    const size_t end = std::min(part.end, picture.order().size());
    for (size_t place = part.begin; place < end; ++place) {
        const auto item = size_t(picture.order()[place]);
        if (item < faces) {
            drawFace(frame, geometry.faces[item]);
            continue;
        }
        frame.part = -1;
        if (item < faces + lines) {
            drawLine(frame, geometry.lines[item - faces]);
            continue;
        }
        const Support& support = geometry.supports[item - faces - lines];
        drawSupport(painter, projection.axes(), picture.point(support.point), support.fixed,
                    frame.symbolSize, {m_colours->symbol(), m_colours->background()});
    }
}

/// Fades the outlines of small elements, because elements of a few pixels would consist only of
/// their outlines.
void ScenePainter::prepare(const QPalette& palette, const ModelGeometry& geometry,
                           const Projection& projection, const GroupMarks& marks)
{
    const double pixels = cellPixels(geometry, projection);
    const int step = int(qBound(0.0, (pixels - 3.5) / 6.5, 1.0) * MeshSteps);
    if (m_colours && step == m_meshStep)
        return;
    m_meshStep = step;
    m_colours =
        std::make_unique<GroupColours>(palette, geometry.parts, marks, step / double(MeshSteps));
}

void ScenePainter::drawFace(Frame& frame, const Face& face) const
{
    QPointF corners[4];
    for (int i = 0; i < face.count; ++i)
        corners[i] = frame.picture.point(face.points[i]);
    const double facing = component(frame.projection.axes().eye, face.normal);
    if (std::abs(facing) < EdgeOn && face.thickness > 0.0F) {
        drawEdgeOn(frame, face, corners);
        return;
    }
    const double lit = component(frame.light, face.normal) * (facing < 0.0 ? -1.0 : 1.0);
    const int shade = int(qBound(0.0, lit, 1.0) * (GroupColours::Shades - 1));
    if (face.part != frame.part || shade != frame.shade) {
        const GroupColours::Set& set = (*m_colours)[face.part];
        frame.painter.setBrush(set.fills[size_t(shade)]);
        if (m_meshStep > 0)
            frame.painter.setPen(set.meshes[size_t(shade)]);
        else
            frame.painter.setPen(Qt::NoPen);
        frame.part = face.part;
        frame.shade = shade;
    }
    if (m_meshStep > 0 || !frame.isSmooth) {
        frame.painter.drawConvexPolygon(corners, face.count);
    } else {
        QPointF grown[4];
        grow(corners, face.count, grown);
        frame.painter.drawConvexPolygon(grown, face.count);
    }
    if (face.strongEdges)
        drawStrongEdges(frame, face, corners);
}

void ScenePainter::drawStrongEdges(Frame& frame, const Face& face, const QPointF* corners) const
{
    frame.painter.setPen((*m_colours)[face.part].edge);
    for (int i = 0; i < face.count; ++i)
        if (face.strongEdges & 1U << unsigned(i))
            frame.painter.drawLine(corners[i], corners[(i + 1) % face.count]);
    frame.part = -1;
}

/// Draws a plate that is seen edge-on. The plate is drawn with its thickness instead of as a
/// hairline.
void ScenePainter::drawEdgeOn(Frame& frame, const Face& face, const QPointF* corners) const
{
    const double width = std::max(2.0, face.thickness * frame.projection.scale());
    frame.painter.setPen(QPen((*m_colours)[face.part].line, width, Qt::SolidLine, Qt::FlatCap));
    for (int i = 0; i < face.count; ++i)
        frame.painter.drawLine(corners[i], corners[(i + 1) % face.count]);
    frame.part = -1;
}

void ScenePainter::drawLine(Frame& frame, const Line& line) const
{
    const QPointF& from = frame.picture.point(line.points[0]);
    const QPointF& to = frame.picture.point(line.points[1]);
    const GroupColours::Set& set = (*m_colours)[line.part];
    const bool isSpring = line.kind == LineKind::Spring || line.kind == LineKind::GroundSpring;
    // The round cap of a column would show through the plate above it.
    const bool isFlat = isSpring || line.meetsFace;
    frame.painter.setPen(QPen(set.line, frame.widths[size_t(line.kind)] + set.widening,
                              Qt::SolidLine, isFlat ? Qt::FlatCap : Qt::RoundCap));
    if (isSpring)
        drawSpring(frame.painter, from, to, line.kind == LineKind::GroundSpring);
    else
        frame.painter.drawLine(from, to);
}

} // namespace aniview
} // namespace vkd
