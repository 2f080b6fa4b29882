#pragma once

#include "view/Picture.h"

namespace vkd {
namespace aniview {

/// Returns the index of the group of the frontmost element at a point of the image, or -1. If there
/// is no element at the point, a face with an edge close to the point is also considered, so that
/// the user can click a plate that is seen edge-on.
int groupAt(const ModelGeometry& geometry, const Picture& picture, const QPointF& place);

} // namespace aniview
} // namespace vkd
