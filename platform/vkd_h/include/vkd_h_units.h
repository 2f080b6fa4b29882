#pragma once

#include "vkd_h_export.h"

#include <QString>

/// The units of the desktop. Records hold base units; users read and type the shown ones.
///
/// | code | dimension | base unit | shown unit | decimals |
/// |---|---|---|---|---|
/// | 5 | direction | rad | ° | 1 |
/// | 1001 | coordinate | m | m | 3 |
/// | 1021 | reinforcement of areas | cm²/m | cm²/m | 2 |
/// | 1023 | bar diameter | mm | mm | 0 |
/// | 1024 | distance, cover | m | mm | 1 |
/// | 1026 | crack width | mm | mm | 2 |
/// | 1092 | steel stress | N/mm² | N/mm² | 1 |
///
/// Any other code, -1 above all, has no unit and shows a number as it is, with up to six
/// significant digits. The decimal sign is that of the desktop's language, and there is no
/// thousands mark.
struct VkdDimension
{
    int code;
    double factor;    ///< shown value = base value * factor
    const char* unit; ///< UTF-8
    int decimals;     ///< -1: as many as six significant digits need
};

/// The dimension of a code; one without unit and with the factor 1 for unknown codes.
VKD_H_EXPORT VkdDimension vkd_h_dimension(int code);

/// The values of a dimension that can be meant, in base units. A field takes others as well, but
/// says that they are unusual.
struct VkdPlausibleRange
{
    int code;
    double minimum;
    double maximum;
};

/// What directions are counted by, where that makes a difference.
enum class VkdDirections {
    HalfTurn, ///< of bars in a plane, 0 to 180 degrees
    Signed    ///< around a point, -180 to 180 degrees
};

/// Everything that is finite for a code whose values are not limited by what can be built.
VKD_H_EXPORT VkdPlausibleRange
vkd_h_plausibleRange(int code, VkdDirections directions = VkdDirections::HalfTurn);

/// A value in base units as the number that users of this dimension read, without its unit. The
/// third argument is part of the suite's interface; -1 is to be passed.
VKD_H_EXPORT QString vkd_h_getDimStringFromVal(double value, int code, int unused);

/// A number in the format of the desktop; `decimals` as in VkdDimension.
VKD_H_EXPORT QString vkd_h_getNumberString(double value, int decimals);
