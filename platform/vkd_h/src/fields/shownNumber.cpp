#include "fields/shownNumber.h"

#include <vkd_language.h>

namespace vkd {
namespace h {

QString shownNumber(QString text)
{
    if (text.startsWith(QLatin1Char('-')) && text.toDouble() == 0)
        text.remove(0, 1);
    const bool isGerman = desktopLanguage() == Language::German;
    return isGerman ? text.replace(QLatin1Char('.'), QLatin1Char(',')) : text;
}

} // namespace h
} // namespace vkd
