#pragma once

#include "ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Fills in what follows from the points and the faces between them: normals, strong edges and the
/// places to sort by.
void completeFaces(ModelGeometry& geometry);

} // namespace aniview
} // namespace vkd
