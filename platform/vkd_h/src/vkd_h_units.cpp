#include "vkd_h_units.h"

#include "VKD_H_UnitLabel.h"

#include <vkd_lib_value.h>

namespace {
constexpr double DegreesPerRadian = 57.295779513082320877;

constexpr VkdDimension Dimensions[] = {
    {5, DegreesPerRadian, "°", 1}, {1001, 1.0, "m", 3},     {1021, 1.0, "cm²/m", 2},
    {1023, 1.0, "mm", 0},          {1024, 1000.0, "mm", 1}, {1026, 1.0, "mm", 2},
    {1092, 1.0, "N/mm²", 1},
};
} // namespace

VkdDimension vkd_h_dimension(int code)
{
    for (const VkdDimension& dimension : Dimensions)
        if (dimension.code == code)
            return dimension;
    return {code, 1.0, "", -1};
}

QString vkd_h_getNumberString(double value, int decimals)
{
    QString text =
        decimals < 0 ? QString::number(value, 'g', 6) : QString::number(value, 'f', decimals);
    // A value that rounds to nothing is nothing: no "-0.0".
    if (text.startsWith(QLatin1Char('-')) && text.toDouble() == 0)
        text.remove(0, 1);
    const bool german = vkd_lib_getvalue(VKD_SETTING_LANGUAGE) == 0;
    return german ? text.replace(QLatin1Char('.'), QLatin1Char(',')) : text;
}

QString vkd_h_getDimStringFromVal(double value, int code, int)
{
    const VkdDimension dimension = vkd_h_dimension(code);
    return vkd_h_getNumberString(value * dimension.factor, dimension.decimals);
}

QString VKD_H_UnitLabel::dimString(int code, int)
{
    const QString unit = QString::fromUtf8(vkd_h_dimension(code).unit);
    return unit.isEmpty() || unit == QLatin1String("\xB0") ? unit : QLatin1Char(' ') + unit;
}
