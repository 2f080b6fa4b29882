#include "groups/groupRows.h"

#include "groups/groupChoice.h"
#include "groups/shownName.h"

#include <vkd_dbo_groups.h>
#include <vkd_dbo_packedNames.h>

#include <QCoreApplication>

#include <algorithm>
#include <map>

namespace vkd {
namespace h {

namespace {
using dbo::GroupContents;
using dbo::GroupSummary;

/// The translation context of the dialog, which all files of it share.
struct DialogText
{
    Q_DECLARE_TR_FUNCTIONS(VKD_H_GroupDialog)
};

struct ElementSort
{
    int GroupContents::*count;
    const char* one;
    const char* many;
};

const ElementSort elementSorts[] = {
    {&GroupContents::quads, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 area"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 areas")},
    {&GroupContents::beams, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 beam"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 beams")},
    {&GroupContents::trusses, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 truss"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 trusses")},
    {&GroupContents::cables, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 cable"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 cables")},
    {&GroupContents::springs, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 spring"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 springs")},
    {&GroupContents::bricks, QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "1 brick"),
     QT_TRANSLATE_NOOP("VKD_H_GroupDialog", "%1 bricks")},
};

QString contentsText(const GroupContents& contents)
{
    QStringList texts;
    for (const ElementSort& sort : elementSorts) {
        const int count = contents.*sort.count;
        if (count == 1)
            texts << DialogText::tr(sort.one);
        else if (count > 1)
            texts << DialogText::tr(sort.many).arg(count);
    }
    return texts.isEmpty() ? DialogText::tr("no elements") : texts.join(QLatin1String(", "));
}

int elementCount(const GroupContents& contents)
{
    int count = 0;
    for (const ElementSort& sort : elementSorts)
        count += contents.*sort.count;
    return count;
}

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
    row.contents = contentsText(summary.contents);
    row.elements = elementCount(summary.contents);
    row.hasAreas = dbo::hasAreas(summary.contents);
    return row;
}

using RowsByGroup = std::map<int, GroupRow>; // without duplicates, even if a group was stored twice

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
