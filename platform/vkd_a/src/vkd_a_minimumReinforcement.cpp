#include "vkd_a_minimumReinforcement.h"

#include <cmath>

namespace {
constexpr double SquareCentimetresPerSquareMetre = 1e4;
} // namespace

double vkd_a_meanTensileStrength(double fck)
{
    const double fcm = fck + 8.0;
    return fck <= VkdGreatestNormalStrength ? 0.30 * std::pow(fck, 2.0 / 3.0)
                                            : 2.12 * std::log(1.0 + fcm / 10.0);
}

VkdMinimumReinforcement vkd_a_minimumReinforcement(double depth, double fctm, double fyk)
{
    const double section = depth * SquareCentimetresPerSquareMetre; // cm², for a strip 1 m wide
    return {VkdTensionFactor * fctm / fyk * section, VkdSectionFactor * section};
}
