#include "record/sharedGroups.h"

#include "record/PageText.h"

#include <vkd_dbo_groupTexts.h>

#include <QStringList>

#include <algorithm>
#include <utility>

namespace plib {

namespace {
constexpr int MostNamed = 5; // maximum number of groups in a message, and of rows per group

QString sentence(int row, const SharedGroup& shared)
{
    QStringList others;
    for (int other : shared.rows) {
        if (other == row)
            continue;
        if (others.size() == MostNamed) {
            others << QString(QChar(0x2026));
            break;
        }
        others << QString::number(other + 1);
    }
    const QString numbers = others.join(QLatin1String(", "));
    if (shared.group == -1)
        return PageText::tr("Remaining Groups: also in row %1").arg(numbers);
    return PageText::tr("Group %1: also in row %2").arg(vkd::dbo::groupText(shared.group), numbers);
}
} // namespace

std::vector<SharedGroup> sharedGroups(const std::vector<DesignParameterRow>& rows)
{
    std::vector<std::pair<int, int>> places; // pairs of group and row
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (int group : rows[row].groups)
            places.emplace_back(group, int(row));
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    std::vector<SharedGroup> shared;
    for (std::size_t i = 1; i < places.size(); ++i) {
        const auto [group, row] = places[i];
        if (group != places[i - 1].first)
            continue;
        if (shared.empty() || shared.back().group != group)
            shared.push_back({group, {places[i - 1].second}});
        shared.back().rows.push_back(row);
    }
    return shared;
}

std::vector<std::vector<const SharedGroup*>>
sharedGroupsOfRows(const std::vector<SharedGroup>& shared, std::size_t rowCount)
{
    std::vector<std::vector<const SharedGroup*>> ofRows(rowCount);
    for (const SharedGroup& group : shared)
        for (int row : group.rows)
            ofRows[std::size_t(row)].push_back(&group);
    return ofRows;
}

QString sharedGroupsText(int row, const std::vector<const SharedGroup*>& shared)
{
    QStringList lines;
    for (const SharedGroup* group : shared) {
        if (lines.size() == MostNamed) {
            lines << QString(QChar(0x2026));
            break;
        }
        lines << sentence(row, *group);
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace plib
