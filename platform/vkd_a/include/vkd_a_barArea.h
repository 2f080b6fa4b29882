#pragma once

#include "vkd_a_export.h"

/// A layer of parallel, equally spaced bars in a plate. Lengths are in the units of the desktop's
/// records.
struct VkdBarLayout
{
    double diameter;      ///< nominal diameter, mm
    double spacing;       ///< centre-to-centre distance of adjacent places, m
    int barsPerPlace = 1; ///< 1, or 2 for side-by-side pairs of bars in contact
};

/// The reason why a bar layout is invalid.
enum class VkdBarFault {
    None,
    NoDiameter, ///< not positive
    NoSpacing,  ///< not positive
    Overlap,    ///< spacing does not exceed the width of the bars at a place
    OutOfRange  ///< area is zero or cannot be stored in a record
};

VKD_A_EXPORT VkdBarFault vkd_a_barFault(const VkdBarLayout& layout);

/// Returns the area of the bars in cm² per metre of plate, n * pi * d² / 4 / s. The area is
/// nominal, as is usual in detailing to EN 1992-1-1. The layout must be valid.
VKD_A_EXPORT double vkd_a_barArea(const VkdBarLayout& layout);

/// Returns an area in cm²/m as dialogs show and store it: rounded to hundredths, as in printed
/// tables. An area below 0.1 cm²/m is not rounded.
VKD_A_EXPORT double vkd_a_roundedArea(double area);

/// Returns the spacing in m at which bars of this diameter in mm provide this area in cm²/m. Both
/// arguments must be positive. The spacing is rounded to millimetres if this yields the same area
/// in hundredths of cm²/m, otherwise to tenths of a millimetre.
VKD_A_EXPORT double vkd_a_barSpacing(double area, double diameter, int barsPerPlace);

/// Returns the clear distance in mm between the bars of adjacent places.
VKD_A_EXPORT double vkd_a_clearDistance(const VkdBarLayout& layout);

/// Returns the minimum clear distance in mm for placing and compacting the concrete and for bond,
/// EN 1992-1-1, 8.2 and 8.9. It is the largest of the bar diameter (for a bundle, the equivalent
/// diameter), the maximum aggregate size plus 5 mm, and 20 mm. `aggregate` is in mm.
VKD_A_EXPORT double vkd_a_leastClearDistance(const VkdBarLayout& layout, double aggregate);
