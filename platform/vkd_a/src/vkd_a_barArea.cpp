#include "vkd_a_barArea.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double Pi = 3.14159265358979323846;
constexpr double Metre = 1000.0; // mm
constexpr double SquareMillimetresPerSquareCentimetre = 100.0;
constexpr double LeastClearDistance = 20.0;            // mm
constexpr double AggregateAllowance = 5.0;             // mm
constexpr double LeastArea = 1e-3, GreatestArea = 1e6; // cm²/m
constexpr double LeastRoundedArea = 0.1;               // cm²/m

double hundredths(double area)
{
    return std::round(area * 100.0);
}
} // namespace

VkdBarFault vkd_a_barFault(const VkdBarLayout& layout)
{
    if (!(layout.diameter > 0))
        return VkdBarFault::NoDiameter;
    if (!(layout.spacing > 0))
        return VkdBarFault::NoSpacing;
    if (!(vkd_a_clearDistance(layout) > 0))
        return VkdBarFault::Overlap;
    const double area = vkd_a_barArea(layout);
    const bool isInRange = area >= LeastArea && area <= GreatestArea;
    return isInRange ? VkdBarFault::None : VkdBarFault::OutOfRange;
}

double vkd_a_barArea(const VkdBarLayout& layout)
{
    const double bar = Pi * layout.diameter * layout.diameter / 4.0;
    return layout.barsPerPlace * bar / layout.spacing / SquareMillimetresPerSquareCentimetre;
}

double vkd_a_roundedArea(double area)
{
    return area < LeastRoundedArea ? area : hundredths(area) / 100.0;
}

double vkd_a_barSpacing(double area, double diameter, int barsPerPlace)
{
    const double spacing = vkd_a_barArea({diameter, 1.0, barsPerPlace}) / area * Metre;
    const double whole = std::round(spacing);
    const bool isSame =
        whole > 0 &&
        hundredths(vkd_a_barArea({diameter, whole / Metre, barsPerPlace})) == hundredths(area);
    const double tenths = std::max(std::round(spacing * 10.0), 1.0) / 10.0;
    return (isSame ? whole : tenths) / Metre;
}

double vkd_a_clearDistance(const VkdBarLayout& layout)
{
    return layout.spacing * Metre - layout.barsPerPlace * layout.diameter;
}

double vkd_a_leastClearDistance(const VkdBarLayout& layout, double aggregate)
{
    const double bundle = layout.diameter * std::sqrt(double(layout.barsPerPlace));
    return std::max({LeastClearDistance, aggregate + AggregateAllowance, bundle});
}
