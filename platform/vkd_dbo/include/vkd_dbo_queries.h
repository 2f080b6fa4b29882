#pragma once

#include "vkd_dbo_export.h"

namespace vkd {
namespace dbo {

/// More about the kind of system than its number; no query of this library fills it.
struct structKindSystem;

/// The kind of the structural system that the project at this database index holds: 0 to 9 spatial,
/// 10 to 19 plane frame or wall, 20 to 29 slab, 30 to 39 axisymmetric. A project without a model
/// gives 0. The second argument is to be null.
VKD_DBO_EXPORT int getKindOfSystem(int index, structKindSystem* details);

/// Whether the model of the project at this database index holds at least one thing of the sort.
/// The second argument is to be null. A project without a model, or an index that is not open,
/// gives false.
VKD_DBO_EXPORT bool hasNodes(int index, int* unused);
VKD_DBO_EXPORT bool hasQuads(int index, int* unused);
VKD_DBO_EXPORT bool hasBoundaries(int index, int* unused);
VKD_DBO_EXPORT bool hasBeams(int index, int* unused);
VKD_DBO_EXPORT bool hasTrus(int index, int* unused);
VKD_DBO_EXPORT bool hasBscts(int index, int* unused);
VKD_DBO_EXPORT bool hasPoints(int index, int* unused);
VKD_DBO_EXPORT bool hasLines(int index, int* unused);
VKD_DBO_EXPORT bool hasAreas(int index, int* unused);
VKD_DBO_EXPORT bool hasAxes(int index, int* unused);
VKD_DBO_EXPORT bool hasCables(int index, int* unused);
VKD_DBO_EXPORT bool hasSprings(int index, int* unused);
VKD_DBO_EXPORT bool hasBrics(int index, int* unused);
VKD_DBO_EXPORT bool hasQuadTendons(int index, int* unused);
VKD_DBO_EXPORT bool hasBeamTendons(int index, int* unused);
VKD_DBO_EXPORT bool hasCrossSections(int index, int* unused);
VKD_DBO_EXPORT bool hasGroups(int index, int* unused);
VKD_DBO_EXPORT bool hasSgrp(int index, int* unused);

} // namespace dbo
} // namespace vkd
