#pragma once

#include "vkd_dbo_export.h"

namespace vkd {
namespace dbo {

/// Further details about the kind of system. No query of this library sets them.
struct structKindSystem;

/// Returns the kind of the structural system of the project at this database index: 0 to 9 spatial,
/// 10 to 19 plane frame or wall, 20 to 29 slab, 30 to 39 axisymmetric. Returns 0 for a project
/// without a model. `details` must be null.
VKD_DBO_EXPORT int getKindOfSystem(int index, structKindSystem* details);

/// Each query returns whether the model of the project at this database index contains at least one
/// item of the type. Returns false for a project without a model or if the index is not open.
/// `unused` must be null.
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
