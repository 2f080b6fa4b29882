#pragma once

#include <QString>

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// A load case that the host offers. The output tree shows it as a row under each plot that binds
/// to load cases.
struct LoadcaseInformation
{
    int kind = 1;   ///< 1 for plots of load cases, 2 for plots of design combinations
    int number = 0; ///< of the load case; a negative number never produces a script line
    /// The text of the row. A "+" and a number before the first ":" request a double picture.
    QString name;

    friend bool operator==(const LoadcaseInformation& a, const LoadcaseInformation& b)
    {
        return a.kind == b.kind && a.number == b.number && a.name == b.name;
    }
    friend bool operator!=(const LoadcaseInformation& a, const LoadcaseInformation& b)
    {
        return !(a == b);
    }
};

} // namespace widgetgraphicaloutput
} // namespace plib
} // namespace vkd
