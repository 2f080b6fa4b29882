#pragma once

#include "vkd_a_export.h"

/// A layer of parallel bars in a plate at equal distances. Lengths have the units of the desktop's
/// records.
struct VkdBarLayout
{
    double diameter;  ///< nominal, mm
    double spacing;   ///< centre to centre of neighbouring places, m
    int barsPerPlace; ///< 1, or 2 for pairs of bars that touch, side by side
};

/// The reason why a layout cannot be built.
enum class VkdBarFault {
    None,
    NoDiameter, ///< not positive
    NoSpacing,  ///< not positive
    Overlap,    ///< the spacing is not above the width of the bars at a place
    OutOfRange  ///< a record cannot hold the area, or it is zero
};

VKD_A_EXPORT VkdBarFault vkd_a_barFault(const VkdBarLayout& layout);

/// Returns the area of the bars in cm² per metre of plate, n * pi * d² / 4 / s. The areas are
/// nominal, as is usual in detailing to EN 1992-1-1. The layout must have no fault.
VKD_A_EXPORT double vkd_a_barArea(const VkdBarLayout& layout);

/// Returns an area in cm²/m as dialogs show and store it: rounded to hundredths, like printed
/// tables. An area below 0.1 cm²/m is not rounded.
VKD_A_EXPORT double vkd_a_roundedArea(double area);

/// Returns the spacing in m at which bars of this diameter in mm give this area in cm²/m; both must
/// be positive. The spacing is in whole millimetres if these give the same area in hundredths of
/// cm²/m, and else in tenths of a millimetre.
VKD_A_EXPORT double vkd_a_barSpacing(double area, double diameter, int barsPerPlace);

/// Returns the clear distance in mm between the bars of neighbouring places.
VKD_A_EXPORT double vkd_a_clearDistance(const VkdBarLayout& layout);

/// Returns the smallest clear distance in mm at which bars can be concreted and bond: the diameter
/// (the equivalent one for a bundle), the size of the largest aggregate plus 5 mm, and at least
/// 20 mm, EN 1992-1-1, 8.2 and 8.9. The aggregate is in mm.
VKD_A_EXPORT double vkd_a_leastClearDistance(const VkdBarLayout& layout, double aggregate);
