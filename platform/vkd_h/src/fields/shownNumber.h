#pragma once

#include <QString>

namespace vkd {
namespace h {

/// Converts a number from the C locale to the shown form: with the decimal sign of the desktop's
/// language, and without the sign of a negative zero such as "-0.0".
QString shownNumber(QString text);

} // namespace h
} // namespace vkd
