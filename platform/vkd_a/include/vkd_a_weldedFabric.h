#pragma once

#include "vkd_a_barArea.h"

#include <array>

/// A stock sheet of welded fabric. Its name contains its nominal longitudinal area in mm²/m. Q
/// sheets carry loads in both directions, R sheets in the longitudinal direction.
struct VkdWeldedFabric
{
    const char* name;
    VkdBarLayout along;  ///< longitudinal bars
    VkdBarLayout across; ///< transverse bars
};

constexpr int VkdWeldedFabrics = 11;

/// Returns the welded fabrics of the German stock range to DIN 488-4. Double bars and the thinner
/// bars at the edges of some sheets are not included.
VKD_A_EXPORT const std::array<VkdWeldedFabric, VkdWeldedFabrics>& vkd_a_weldedFabrics();
