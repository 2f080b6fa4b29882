#pragma once

#include "geometry/ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Computes the normals, the strong edges and the sort keys from the points, faces and lines.
void completeFaces(ModelGeometry& geometry);

} // namespace aniview
} // namespace vkd
