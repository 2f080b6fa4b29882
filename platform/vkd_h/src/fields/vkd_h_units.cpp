#include "vkd_h_units.h"

#include "fields/shownNumber.h"
#include "VKD_H_UnitLabel.h"

#include <limits>
#include <vector>

namespace {
constexpr double DegreesPerRadian = 57.295779513082320877;

constexpr VkdDimension Dimensions[] = {
    {5, "rad", DegreesPerRadian, "°", 1}, {1001, "m", 1.0, "m", 3},
    {1021, "cm²/m", 1.0, "cm²/m", 2},     {1023, "mm", 1.0, "mm", 0},
    {1024, "m", 1000.0, "mm", 1},         {1026, "mm", 1.0, "mm", 2},
    {1092, "N/mm²", 1.0, "N/mm²", 1},
};

constexpr int DirectionCode = 5;
constexpr double HalfTurn = 180.0 / DegreesPerRadian;

constexpr VkdPlausibleRange Plausible[] = {
    {DirectionCode, 0.0, HalfTurn},
    {1021, 0.0, 251.33}, // the largest bars, 40 mm, at 50 mm spacing
    {1024, 0.0, 0.3},
    {1026, 0.0, 1.0},
    {1092, 0.0, 600.0},
};
constexpr VkdPlausibleRange SignedDirections{DirectionCode, -HalfTurn, HalfTurn};
} // namespace

VkdDimension vkd_h_dimension(int code)
{
    for (const VkdDimension& dimension : Dimensions)
        if (dimension.code == code)
            return dimension;
    return {code, "", 1.0, "", -1};
}

VkdPlausibleRange vkd_h_plausibleRange(int code, VkdDirections directions)
{
    if (code == DirectionCode && directions == VkdDirections::Signed)
        return SignedDirections;
    for (const VkdPlausibleRange& range : Plausible)
        if (range.code == code)
            return range;
    return {code, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max()};
}

QString vkd_h_getNumberString(double value, int decimals)
{
    return vkd::h::shownNumber(decimals < 0 ? QString::number(value, 'g', 6)
                                            : QString::number(value, 'f', decimals));
}

QString vkd_h_getDimStringFromVal(double value, int code, int)
{
    const VkdDimension dimension = vkd_h_dimension(code);
    return vkd_h_getNumberString(value * dimension.factor, dimension.decimals);
}

namespace {
/// Returns the unit texts that follow a number, in the order of the table.
std::vector<QString> unitLabels()
{
    std::vector<QString> labels;
    for (const VkdDimension& dimension : Dimensions) {
        const QString unit = QString::fromUtf8(dimension.unit);
        labels.push_back(unit == QLatin1String("\xB0") ? unit : QLatin1Char(' ') + unit);
    }
    return labels;
}
} // namespace

QString VKD_H_UnitLabel::dimString(int code, int)
{
    static const std::vector<QString> labels = unitLabels(); // tables call this for each value
    for (std::size_t i = 0; i < labels.size(); ++i)
        if (Dimensions[i].code == code)
            return labels[i];
    return QString();
}
