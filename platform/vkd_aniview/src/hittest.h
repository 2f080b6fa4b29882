#pragma once

#include "Picture.h"

namespace vkd {
namespace aniview {

/// The index of the group of the frontmost element at a place of the picture, or -1. Where there is
/// none, faces whose edge is close by count too, so that a plate can be met that is seen edge-on.
int groupAt(const ModelGeometry& geometry, const Picture& picture, const QPointF& place);

} // namespace aniview
} // namespace vkd
