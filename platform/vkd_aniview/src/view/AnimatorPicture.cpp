#include "AnimatorPicture.h"

#include "geometry/sharedGeometry.h"
#include "view/ScenePainter.h"
#include "view/SceneView.h"
#include "view/symbols.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

using namespace vkd::aniview;

namespace {
/// Returns a palette for printing, with a white background even if the desktop is dark.
QPalette paperPalette()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

double lengthAlong(const Position& axis, const Position& lengths)
{
    return std::abs(axis[0]) * lengths[0] + std::abs(axis[1]) * lengths[1] +
           std::abs(axis[2]) * lengths[2];
}

/// Paints the axis triad, which is small enough to fit into the margin of most images.
void drawAxes(QPainter& painter, const ViewAxes& axes, double height)
{
    constexpr double Length = 18.0;
    constexpr double Inset = 22.0;
    QFont names = painter.font();
    names.setPixelSize(9);
    painter.setFont(names);
    drawTriad(painter, axes, {Inset, height - Inset}, Length, {Qt::black, Qt::white});
}
} // namespace

AnimatorPicture::AnimatorPicture(ZobHandle project)
    : m_scene(std::make_unique<SceneView>())
    , m_painter(std::make_unique<ScenePainter>())
{
    m_scene->setGeometry(sharedGeometry(project));
}

AnimatorPicture::~AnimatorPicture() = default;

bool AnimatorPicture::isEmpty() const
{
    return m_scene->geometry().isEmpty();
}

QSizeF AnimatorPicture::sizeSeen(const Camera& camera) const
{
    const ViewAxes axes = axesOf(camera);
    const Position& half = m_scene->geometry().box.half;
    return 2.0 * QSizeF(lengthAlong(axes.right, half), lengthAlong(axes.up, half));
}

double AnimatorPicture::fittingScale(const Camera& camera, const QSizeF& size) const
{
    return Projection::fittingScale(axesOf(camera), m_scene->geometry().box, size);
}

void AnimatorPicture::paint(QPainter& painter, const QSizeF& size, const Camera& camera,
                            double scale)
{
    Camera aimedCamera = wholeModel(camera);
    aimedCamera.zoom = scale / fittingScale(camera, size);
    m_scene->setCamera(aimedCamera);
    m_scene->setSize(size);
    painter.save();
    painter.setClipRect(QRectF(QPointF(), size), Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    const Projection projection = m_scene->projection();
    m_painter->paint(painter, paperPalette(), m_scene->geometry(), m_scene->picture(), projection,
                     GroupMarks());
    drawAxes(painter, projection.axes(), size.height());
    painter.restore();
}

/// Returns the camera aimed at the centre of the model, because a camera with a zoom other than 1
/// would otherwise look at the origin.
Camera AnimatorPicture::wholeModel(const Camera& camera) const
{
    Camera direction;
    std::copy(std::begin(camera.eye), std::end(camera.eye), direction.eye);
    direction.roll = camera.roll;
    return aimed(direction, m_scene->geometry().box);
}
