#pragma once

#include "vkd_a_export.h"

/// The recommended factors of EN 1992-1-1, 9.2.1.1 (1), Equation (9.1N).
constexpr double VkdTensionFactor = 0.26;
constexpr double VkdSectionFactor = 0.0013;

/// Above this fck, in N/mm², Table 3.1 has a different formula for the tensile strength.
constexpr double VkdGreatestNormalStrength = 50.0;

/// Returns the mean axial tensile strength fctm in N/mm² of concrete with the characteristic
/// cylinder strength fck in N/mm², 12 to 90, EN 1992-1-1, Table 3.1.
VKD_A_EXPORT double vkd_a_meanTensileStrength(double fck);

/// The minimum longitudinal reinforcement of a slab per metre of width, EN 1992-1-1, 9.2.1.1 (1)
/// and 9.3.1.1 (1), with the recommended values. National annexes may differ. Areas are in cm²/m.
struct VkdMinimumReinforcement
{
    double ofTension; ///< VkdTensionFactor * fctm / fyk * d
    double ofSection; ///< VkdSectionFactor * d

    double area() const { return ofTension > ofSection ? ofTension : ofSection; }
};

/// Returns the minimum reinforcement for the effective depth in m, and for fctm and the yield
/// strength fyk of the steel in N/mm².
VKD_A_EXPORT VkdMinimumReinforcement vkd_a_minimumReinforcement(double depth, double fctm,
                                                                double fyk);
