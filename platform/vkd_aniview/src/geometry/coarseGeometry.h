#pragma once

#include "geometry/ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Returns a geometry with at most half the items of a large one, for pictures that must be painted
/// quickly, and null if the geometry is small. The result has a coarser one in turn.
std::shared_ptr<const ModelGeometry> coarserGeometry(const ModelGeometry& geometry);

/// Returns the geometry with the points of each group merged in the cells of a grid, without the
/// items that have no extent left. Groups are not merged with each other, so that storeys stay
/// apart. `cell` is the length of a cell.
ModelGeometry mergedInCells(const ModelGeometry& geometry, float cell);

} // namespace aniview
} // namespace vkd
