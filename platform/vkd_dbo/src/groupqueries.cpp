#include "recordlist.h"
#include "vkd_dbo_groups.h"
#include "vkd_dbo_packedNames.h"

#include <ZobSnapshot.h>

#include <QHash>
#include <QtEndian>

namespace vkd {
namespace dbo {

namespace {
struct ElementList
{
    KeyPair pair;
    int GroupContents::*count;
};

constexpr ElementList elementLists[] = {
    {keys::Quads, &GroupContents::quads},     {keys::Beams, &GroupContents::beams},
    {keys::Trusses, &GroupContents::trusses}, {keys::Cables, &GroupContents::cables},
    {keys::Springs, &GroupContents::springs}, {keys::Bricks, &GroupContents::bricks},
};

/// Reads only the group, which is the second number in each element record. For a large model,
/// decoding whole records would take most of the time.
VkdStatus countElements(ZobHandle project, const ElementList& list,
                        QHash<int, GroupContents>& contents)
{
    constexpr int GroupAt = sizeof(qint32);
    VkdStatus damage;
    const VkdStatus read = forEachRecord(project, list.pair, [&](const QByteArray& bytes) {
        if (bytes.size() < GroupAt + int(sizeof(qint32))) {
            damage = reportDamagedRecord(project, list.pair);
            return;
        }
        const int group = qFromLittleEndian<qint32>(bytes.constData() + GroupAt);
        ++(contents[group].*list.count);
    });
    return read.isOk() ? damage : read;
}
} // namespace

QVector<GroupSummary> readGroups(ZobHandle project, VkdStatus* status)
{
    const ZobSnapshot snapshot(project);
    VkdStatus first = snapshot.status();
    QVector<Group> groups;
    if (first.isOk())
        first = readList(project, keys::Groups, groups);
    QHash<int, GroupContents> contents;
    for (const ElementList& list : elementLists) {
        if (groups.isEmpty() || !mayContinue(first))
            break;
        const VkdStatus counted = countElements(project, list, contents);
        if (first.isOk() || !mayContinue(counted))
            first = counted;
    }
    if (status)
        *status = first;
    QVector<GroupSummary> summaries;
    summaries.reserve(groups.size());
    for (const Group& group : qAsConst(groups))
        summaries.append({group.number, {}, group.title, contents.value(group.number)});
    return summaries;
}

QVector<GroupSummary> readSecondaryGroups(ZobHandle project, VkdStatus* status)
{
    QVector<SecondaryGroup> groups;
    const VkdStatus read = readList(project, keys::SecondaryGroups, groups);
    if (status)
        *status = read;
    QVector<GroupSummary> summaries;
    summaries.reserve(groups.size());
    for (const SecondaryGroup& group : qAsConst(groups)) {
        GroupContents contents;
        contents.quads = group.quads.size();
        contents.beams = group.beams.size();
        summaries.append({0, group.name, group.title, contents});
    }
    return summaries;
}

QHash<int, QString> readGroupTitles(ZobHandle project)
{
    const ZobSnapshot snapshot(project);
    QVector<Group> groups;
    QVector<SecondaryGroup> secondary;
    readList(project, keys::Groups, groups);
    readList(project, keys::SecondaryGroups, secondary);
    QHash<int, QString> titles;
    for (const Group& group : qAsConst(groups))
        titles.insert(group.number, group.title);
    for (const SecondaryGroup& group : qAsConst(secondary))
        titles.insert(packedName(group.name), group.title);
    return titles;
}

} // namespace dbo
} // namespace vkd
