#pragma once

#include "vkd_a_export.h"

/// Parallel bars in a plate, at equal distances. Lengths are in the units that the desktop's
/// records have them in.
struct VkdBarLayout
{
    double diameter;  ///< nominal, mm
    double spacing;   ///< from one place to the next, centre to centre, m
    int barsPerPlace; ///< 1, or 2 for pairs of bars that touch
};

/// Why a layout cannot be built.
enum class VkdBarFault {
    None,
    NoDiameter, ///< not positive
    NoSpacing,  ///< not positive
    Overlap,    ///< the spacing is not above the diameter
    OutOfRange  ///< the area is none that a record can hold, or none at all
};

VKD_A_EXPORT VkdBarFault vkd_a_barFault(const VkdBarLayout& layout);

/// The area of the bars in cm² per metre of plate, n * pi * d² / 4 / s: nominal areas, as detailing
/// to EN 1992-1-1 takes them. Only for a layout without a fault.
VKD_A_EXPORT double vkd_a_barArea(const VkdBarLayout& layout);

/// The area as it is read and stored: hundredths of cm²/m, as in printed tables. An area below
/// 0.1 cm²/m stays as it is.
VKD_A_EXPORT double vkd_a_roundedBarArea(const VkdBarLayout& layout);

/// The spacing in m at which bars of this diameter in mm give this area in cm²/m, both positive: in
/// whole millimetres, if that gives the same area in hundredths of cm²/m.
VKD_A_EXPORT double vkd_a_barSpacing(double area, double diameter, int barsPerPlace);

/// The clear distance in mm that bars need at least to be concreted and to bond: the diameter (of a
/// bundle: the equivalent one) and 20 mm, EN 1992-1-1, 8.2 and 8.9. The size of the aggregate,
/// which it may ask more for, is not known here.
VKD_A_EXPORT double vkd_a_leastClearDistance(const VkdBarLayout& layout);
