#include "recordlist.h"
#include "vkd_dbo_groups.h"

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

/// Reads only the group, which is the second number of every element's record; decoding whole
/// records would take most of the time for a large model.
VkdStatus countElements(ZobHandle project, const ElementList& list,
                        QHash<int, GroupContents>& contents)
{
    constexpr int GroupAt = sizeof(qint32);
    return forEachRecord(project, list.pair, [&](const QByteArray& bytes) {
        if (bytes.size() < GroupAt + int(sizeof(qint32))) {
            reportDamagedRecord(project, list.pair);
            return;
        }
        const int group = qFromLittleEndian<qint32>(bytes.constData() + GroupAt);
        ++(contents[group].*list.count);
    });
}
} // namespace

QVector<GroupSummary> readGroups(ZobHandle project)
{
    const ZobSnapshot snapshot(project);
    QVector<Group> groups;
    bool goesOn = snapshot.status().isOk() &&
                  mayContinue(readList(project, keys::Groups, groups)) && !groups.isEmpty();
    QHash<int, GroupContents> contents;
    for (const ElementList& list : elementLists)
        goesOn = goesOn && mayContinue(countElements(project, list, contents));
    QVector<GroupSummary> summaries;
    summaries.reserve(groups.size());
    for (const Group& group : qAsConst(groups))
        summaries.append({group.number, {}, group.title, contents.value(group.number)});
    return summaries;
}

QVector<GroupSummary> readSecondaryGroups(ZobHandle project)
{
    QVector<SecondaryGroup> groups;
    readList(project, keys::SecondaryGroups, groups);
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

} // namespace dbo
} // namespace vkd
