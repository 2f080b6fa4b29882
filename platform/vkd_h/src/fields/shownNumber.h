#pragma once

#include <QString>

namespace vkd {
namespace h {

/// Converts a number from the C locale to its displayed form. Uses the decimal separator of the
/// desktop language and removes the sign of a negative zero such as "-0.0".
QString shownNumber(QString text);

} // namespace h
} // namespace vkd
