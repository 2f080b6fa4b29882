#include "view/SceneView.h"

#include "view/GroupMarks.h"
#include "view/HitTest.h"

#include <algorithm>
#include <utility>

namespace vkd {
namespace aniview {

namespace {
constexpr double SymbolRoom = 12.0; // pixels by which symbols extend beyond their points
constexpr size_t ItemsToSort = 6;   // items that can be sorted in the time to paint one
} // namespace

void SceneView::setGeometry(std::shared_ptr<const ModelGeometry> geometry)
{
    m_geometry = std::move(geometry);
    m_hitTest.reset();
    findHidden();
}

void SceneView::setHiddenGroups(const std::vector<int>& groups)
{
    m_hiddenGroups = groups;
    findHidden();
}

void SceneView::findHidden()
{
    m_isCurrent = false;
    m_isHidden.clear();
    if (m_hiddenGroups.empty())
        return;
    for (const GroupPart& part : m_geometry->parts) {
        const auto found = std::find(m_hiddenGroups.begin(), m_hiddenGroups.end(), part.group);
        m_isHidden.push_back(found != m_hiddenGroups.end() ? 1 : 0);
    }
}

void SceneView::setCamera(const Camera& camera)
{
    m_camera = camera;
    m_isCurrent = false;
}

void SceneView::setSize(const QSizeF& size)
{
    m_size = size;
    m_isCurrent = false;
}

void SceneView::showAll()
{
    Camera camera = lookingFrom({m_camera.eye[0], m_camera.eye[1], m_camera.eye[2]});
    camera.roll = m_camera.roll;
    setCamera(camera);
}

void SceneView::turn(double right, double down)
{
    setCamera(turnedInPicture(m_camera, m_geometry->box, m_size, right, down));
}

void SceneView::pan(const QPointF& by)
{
    setCamera(panned(m_camera, m_geometry->box, m_size, by));
}

void SceneView::zoom(double factor, const QPointF& at)
{
    setCamera(zoomed(m_camera, m_geometry->box, m_size, factor, at));
}

Projection SceneView::projection() const
{
    return {m_camera, m_geometry->box, m_size};
}

const Picture& SceneView::picture()
{
    if (!m_isCurrent)
        m_picture.update(*m_geometry, projection(), visiblePart(), m_isHidden);
    m_isCurrent = true;
    return m_picture;
}

SceneView::Drawn SceneView::quickPicture(int mostItems)
{
    const auto most = size_t(mostItems);
    const ModelGeometry* level = m_geometry.get();
    while (level->coarser && level->itemCount() > ItemsToSort * most)
        level = level->coarser.get();
    for (;; level = level->coarser.get()) {
        const bool isFull = level == m_geometry.get();
        if (!isFull)
            m_quickPicture.update(*level, projection(), visiblePart(), m_isHidden);
        const Picture& drawn = isFull ? picture() : m_quickPicture;
        if (!level->coarser || drawn.order().size() <= most)
            return {*level, drawn};
    }
}

QRectF SceneView::visiblePart() const
{
    return QRectF(QPointF(), m_size).adjusted(-SymbolRoom, -SymbolRoom, SymbolRoom, SymbolRoom);
}

int SceneView::groupAt(const QPointF& place)
{
    if (!m_hitTest)
        m_hitTest = std::make_shared<const HitTest>(*m_geometry);
    const int index = m_hitTest->partAt(projection(), place, m_isHidden);
    return index < 0 ? GroupMarks::NoGroup : m_geometry->parts[size_t(index)].group;
}

} // namespace aniview
} // namespace vkd
