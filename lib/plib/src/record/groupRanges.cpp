#include "record/groupRanges.h"

#include "record/rowText.h"

#include <vkd_dbo_packedNames.h>

#include <QStringList>

#include <algorithm>

namespace plib {

namespace {
constexpr int LeastForRange = 3;
} // namespace

QString groupRanges(std::vector<int> numbers)
{
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    QStringList parts;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t end = first + 1;
        while (end < numbers.size() && numbers[end] < vkd::dbo::FirstPackedName &&
               numbers[end] == numbers[end - 1] + 1)
            ++end;
        if (end - first < LeastForRange)
            end = first + 1;
        QString part = groupText(numbers[first]);
        if (end - first > 1)
            part += QLatin1Char('-') + groupText(numbers[end - 1]);
        parts << part;
        first = end;
    }
    return parts.join(QLatin1String(", "));
}

} // namespace plib
