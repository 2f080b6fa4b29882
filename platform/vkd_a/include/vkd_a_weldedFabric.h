#pragma once

#include "vkd_a_barArea.h"

#include <array>

/// A sheet of welded fabric held in stock. Its name contains its nominal longitudinal area in
/// mm²/m. Sheets with a Q carry in both directions, sheets with an R in the longitudinal one.
struct VkdWeldedFabric
{
    const char* name;
    VkdBarLayout along;  ///< longitudinal bars
    VkdBarLayout across; ///< transverse bars
};

constexpr int VkdWeldedFabrics = 11;

/// Returns the fabrics of the German stock range of steel to DIN 488-4. The double bars and thinner
/// bars at the edges of some sheets are left out.
VKD_A_EXPORT const std::array<VkdWeldedFabric, VkdWeldedFabrics>& vkd_a_weldedFabrics();
