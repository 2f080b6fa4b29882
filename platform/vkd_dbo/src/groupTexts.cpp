#include "vkd_dbo_groupTexts.h"

#include "vkd_dbo_packedNames.h"

#include <QStringList>

#include <algorithm>

namespace vkd {
namespace dbo {

namespace {
constexpr std::size_t LeastForRange = 3;

/// Returns the end of the consecutive numbers that begin at `first`.
std::size_t endOfRange(const std::vector<int>& groups, std::size_t first)
{
    std::size_t end = first + 1;
    while (end < groups.size() && isPrimaryGroup(groups[end]) && groups[end] == groups[end - 1] + 1)
        ++end;
    return end;
}
} // namespace

QString groupText(int group)
{
    return isSecondaryGroup(group) ? unpackedName(group) : QString::number(group);
}

QString groupRanges(std::vector<int> groups)
{
    std::sort(groups.begin(), groups.end());
    groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    groups.erase(groups.begin(), std::lower_bound(groups.begin(), groups.end(), 0));
    QStringList parts;
    for (std::size_t first = 0, end = 0; first < groups.size(); first = end) {
        end = endOfRange(groups, first);
        QString part = groupText(groups[first]);
        if (end - first >= LeastForRange)
            part += QLatin1Char('-') + groupText(groups[end - 1]);
        else
            end = first + 1;
        parts << part;
    }
    return parts.join(QLatin1String(", "));
}

} // namespace dbo
} // namespace vkd
