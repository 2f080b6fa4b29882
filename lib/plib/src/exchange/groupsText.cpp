#include "exchange/groupsText.h"

#include "exchange/rowColumns.h"
#include "record/rowText.h"

#include <vkd_dbo_groups.h>
#include <vkd_dbo_groupTexts.h>
#include <vkd_dbo_packedNames.h>
#include <VKD_H_ZOBDoc.h>

namespace plib {

namespace {
std::set<int> groupsOf(const DesignParameterData& data)
{
    std::set<int> groups;
    const QHash<int, QString> titles = vkd::dbo::readGroupTitles(data.doc->handle());
    for (auto title = titles.begin(); title != titles.end(); ++title)
        groups.insert(title.key());
    for (const DesignParameterRow& row : data.rows)
        if (!isRemainingGroups(row.groups))
            groups.insert(row.groups.begin(), row.groups.end());
    return groups;
}
} // namespace

KnownGroups::KnownGroups(const std::set<int>& groups)
    : numbers(groups.begin(), groups.lower_bound(vkd::dbo::FirstPackedName))
    , names({groups.lower_bound(vkd::dbo::FirstPackedName), groups.end()})
{
}

KnownGroups::KnownGroups(const DesignParameterData& data)
    : KnownGroups(groupsOf(data))
{
}

/// A secondary group may be named "None".
GroupsReading readGroupsText(const QString& text, const KnownGroups& known)
{
    if (isNoGroupsText(text) && !known.names.contains(vkd::dbo::packedName(text)))
        return {true, {}, {}};
    if (text.compare(QLatin1String("remaining"), Qt::CaseInsensitive) == 0 ||
        isRemainingGroupsText(text))
        return {true, {-1}, {}};
    const vkd::h::GroupInput input = vkd::h::readNumbersAndNames(text, known.numbers, known.names);
    return {input.missing.isEmpty() && !input.groups.empty(), input.groups, input.missing};
}

QString editableGroupsText(const DesignParameterRow& row)
{
    if (row.groups.empty())
        return QString();
    return isRemainingGroups(row.groups) ? rowText(row, 0) : vkd::dbo::groupRanges(row.groups);
}

} // namespace plib
