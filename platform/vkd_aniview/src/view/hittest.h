#pragma once

#include "view/Picture.h"

namespace vkd {
namespace aniview {

/// Returns the index of the group of the frontmost element at a point of the picture, or -1. If
/// there is no element, a face with an edge close to the point counts too, so that the user can hit
/// a plate that is seen edge-on.
int groupAt(const ModelGeometry& geometry, const Picture& picture, const QPointF& place);

} // namespace aniview
} // namespace vkd
