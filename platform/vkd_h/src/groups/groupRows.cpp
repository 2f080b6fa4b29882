#include "groups/groupRows.h"

#include "groups/groupChoice.h"
#include "groups/shownName.h"
#include "vkd_h_groupContents.h"

#include <vkd_dbo_groups.h>
#include <vkd_dbo_packedNames.h>

#include <algorithm>
#include <map>

namespace vkd {
namespace h {

namespace {
using dbo::GroupSummary;

QString nameOf(VKD_H_GroupKind kind, int group)
{
    return kind == VKD_H_GroupKind::Secondary ? shownName(group) : QString::number(group);
}

GroupRow toRow(VKD_H_GroupKind kind, const GroupSummary& summary)
{
    GroupRow row;
    row.group = kind == VKD_H_GroupKind::Secondary ? dbo::packedName(summary.name) : summary.number;
    row.name = nameOf(kind, row.group);
    row.title = summary.title;
    row.contents = groupContentsText(summary.contents);
    row.elements = elementCount(summary.contents);
    row.hasAreas = dbo::hasAreas(summary.contents);
    return row;
}

using RowsByGroup = std::map<int, GroupRow>; // no duplicates, even if a group is stored twice

RowsByGroup modelRows(VKD_H_GroupKind kind, ZobHandle project)
{
    if (project.isNull())
        return {};
    RowsByGroup rows;
    const QVector<GroupSummary> summaries = kind == VKD_H_GroupKind::Secondary
                                                ? dbo::readSecondaryGroups(project)
                                                : dbo::readGroups(project);
    for (const GroupSummary& summary : summaries) {
        const GroupRow row = toRow(kind, summary);
        if (isOfKind(kind, row.group))
            rows.emplace(row.group, row);
    }
    return rows;
}

GroupRow unknownRow(VKD_H_GroupKind kind, int group)
{
    GroupRow row;
    row.group = group;
    row.name = nameOf(kind, group);
    row.isInModel = false;
    return row;
}
} // namespace

QVector<GroupRow> groupRows(VKD_H_GroupKind kind, ZobHandle project,
                            const std::vector<int>& checked, const std::vector<int>& usedElsewhere)
{
    RowsByGroup rows = modelRows(kind, project);
    for (int group : checked)
        if (isOfKind(kind, group))
            rows.emplace(group, unknownRow(kind, group)).first->second.isChecked = true;
    for (int group : usedElsewhere) {
        const auto found = rows.find(group);
        if (found != rows.end())
            found->second.isTaken = true;
    }
    QVector<GroupRow> all;
    all.reserve(int(rows.size()));
    for (const auto& row : rows)
        all.append(row.second);
    return all;
}

} // namespace h
} // namespace vkd
