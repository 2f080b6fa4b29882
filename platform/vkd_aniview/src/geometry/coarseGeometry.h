#pragma once

#include "geometry/ModelGeometry.h"

namespace vkd {
namespace aniview {

/// Returns a coarser geometry with at most half as many items, for images that must be painted
/// quickly, or null if `geometry` is small. The result may itself have a coarser geometry.
std::shared_ptr<const ModelGeometry> coarserGeometry(const ModelGeometry& geometry);

/// Returns the geometry in which the points of each group are merged in the cells of a grid. Items
/// that no longer have any extent are omitted. Groups are not merged with each other, so that
/// storeys remain separate. `cell` is the edge length of a cell.
ModelGeometry mergedInCells(const ModelGeometry& geometry, float cell);

} // namespace aniview
} // namespace vkd
