#pragma once

#include "vkd_h_export.h"

#include <QString>

/// The units of the desktop. Records contain values in base units. Users see and type values in
/// displayed units.
///
/// | code | dimension | base unit | displayed unit | decimals |
/// |---|---|---|---|---|
/// | 5 | direction | rad | ° | 1 |
/// | 1001 | coordinate | m | m | 3 |
/// | 1021 | reinforcement of areas | cm²/m | cm²/m | 2 |
/// | 1023 | bar diameter | mm | mm | 0 |
/// | 1024 | distance, cover | m | mm | 1 |
/// | 1026 | crack width | mm | mm | 2 |
/// | 1092 | steel stress | N/mm² | N/mm² | 1 |
///
/// Any other code, usually -1, has no unit, and its numbers are shown with up to six significant
/// digits. The decimal separator is that of the desktop language, and there is no thousands
/// separator.
struct VkdDimension
{
    int code;
    const char* baseUnit; ///< UTF-8
    double factor;        ///< displayed value = base value * factor
    const char* unit;     ///< displayed unit, UTF-8
    int decimals;         ///< -1: up to six significant digits
};

/// Returns the dimension of a code. Unknown codes have no unit and the factor 1.
VKD_H_EXPORT VkdDimension vkd_h_dimension(int code);

/// The plausible values of a dimension, in base units. A field also accepts other values, but marks
/// them as unusual.
struct VkdPlausibleRange
{
    int code;
    double minimum;
    double maximum;
};

/// The range of a direction.
enum class VkdDirections {
    HalfTurn, ///< bars in a plane, 0 to 180 degrees
    Signed    ///< around a point, -180 to 180 degrees
};

/// Returns the plausible range for a code, or the range of all finite values if no plausible range
/// is defined for it.
VKD_H_EXPORT VkdPlausibleRange
vkd_h_plausibleRange(int code, VkdDirections directions = VkdDirections::HalfTurn);

/// Converts a value to the displayed unit and returns its text without the unit. The third argument
/// belongs to the suite's interface and must be -1.
VKD_H_EXPORT QString vkd_h_getDimStringFromVal(double value, int code, int unused);

/// Returns the text of a number in the desktop's format. For `decimals`, see VkdDimension.
VKD_H_EXPORT QString vkd_h_getNumberString(double value, int decimals);
