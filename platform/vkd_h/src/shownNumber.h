#pragma once

#include <QString>

namespace vkd {
namespace h {

/// A number in the C locale as it is shown: with the decimal sign of the desktop's language, and
/// without a sign if it has rounded to nothing, as "-0.0".
QString shownNumber(QString text);

} // namespace h
} // namespace vkd
