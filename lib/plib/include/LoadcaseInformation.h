#pragma once

#include <QString>

namespace vkd {
namespace plib {
namespace widgetgraphicaloutput {

/// A load case that the host offers. The output tree shows it as a row under each plot that is
/// bound to load cases.
struct LoadcaseInformation
{
    int kind = 1;   ///< 1 for plots of load cases, 2 for plots of design combinations
    int number = 0; ///< if negative, the row never produces a script line
    /// The text of the row. A "+" followed by a number before the first ":" requests a picture that
    /// combines two load cases.
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
