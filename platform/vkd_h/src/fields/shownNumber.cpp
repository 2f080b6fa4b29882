#include "fields/shownNumber.h"

#include <vkd_lib_value.h>

namespace vkd {
namespace h {

QString shownNumber(QString text)
{
    if (text.startsWith(QLatin1Char('-')) && text.toDouble() == 0)
        text.remove(0, 1);
    const bool german = vkd_lib_getvalue(VKD_SETTING_LANGUAGE) == 0;
    return german ? text.replace(QLatin1Char('.'), QLatin1Char(',')) : text;
}

} // namespace h
} // namespace vkd
