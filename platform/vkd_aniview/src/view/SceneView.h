#pragma once

#include "view/Picture.h"

#include <memory>

namespace vkd {
namespace aniview {

class HitTest;

/// A geometry, a camera and the resulting image, which is updated on demand.
class SceneView
{
public:
    void setGeometry(std::shared_ptr<const ModelGeometry> geometry);
    const ModelGeometry& geometry() const { return *m_geometry; }

    /// Sets the numbers of the groups that are neither drawn nor found at a point.
    void setHiddenGroups(const std::vector<int>& groups);

    const Camera& camera() const { return m_camera; }
    void setCamera(const Camera& camera);
    void setSize(const QSizeF& size);

    void showAll();
    void turn(double right, double down); ///< degrees
    void pan(const QPointF& by);          ///< pixels
    void zoom(double factor, const QPointF& at);

    Projection projection() const;
    const Picture& picture();

    /// A geometry and its projection.
    struct Drawn
    {
        const ModelGeometry& geometry;
        const Picture& picture;
    };
    /// Returns the finest picture with at most this number of visible items, or the coarsest
    /// picture if every picture has more.
    Drawn quickPicture(int mostItems);

    /// Returns the number of the frontmost group at a point of the image, or GroupMarks::NoGroup.
    int groupAt(const QPointF& place);

private:
    void findHidden();
    QRectF visiblePart() const;

    std::shared_ptr<const ModelGeometry> m_geometry = std::make_shared<ModelGeometry>();
    std::shared_ptr<const HitTest> m_hitTest; // null until the first search
    Camera m_camera;
    QSizeF m_size{1.0, 1.0};
    Picture m_picture;
    Picture m_quickPicture;
    bool m_isCurrent = false;
    std::vector<int> m_hiddenGroups;
    std::vector<char> m_isHidden; // one flag for each part of the geometry, or empty
};

} // namespace aniview
} // namespace vkd
