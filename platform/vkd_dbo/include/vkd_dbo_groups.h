#pragma once

#include "vkd_dbo_export.h"

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QHash>
#include <QString>
#include <QVector>

namespace vkd {
namespace dbo {

/// The number of elements of each type in a group.
struct GroupContents
{
    int quads = 0;
    int beams = 0;
    int trusses = 0;
    int cables = 0;
    int springs = 0;
    int bricks = 0;
};

/// Returns whether the group contains area elements that can be designed.
inline bool hasAreas(const GroupContents& contents)
{
    return contents.quads > 0;
}

/// A primary or a secondary group. A secondary group has a name instead of a number and contains
/// only quads and beams.
struct GroupSummary
{
    int number = 0; ///< 0 for a secondary group
    QString name;   ///< empty for a primary group
    QString title;
    GroupContents contents;
};

/// Returns the groups of the project in the order of the model, or an empty list if the project has
/// no model. All elements are read once. Elements whose group is not in the model's list of groups
/// are not counted. If `status` is not null, it receives OK if everything was read, otherwise the
/// first failure.
VKD_DBO_EXPORT QVector<GroupSummary> readGroups(ZobHandle project, VkdStatus* status = nullptr);
VKD_DBO_EXPORT QVector<GroupSummary> readSecondaryGroups(ZobHandle project,
                                                         VkdStatus* status = nullptr);

/// Returns the titles of all primary and secondary groups without reading the
/// elements. The keys are numbers as in lists of groups, with packed names of secondary groups.
VKD_DBO_EXPORT QHash<int, QString> readGroupTitles(ZobHandle project);

} // namespace dbo
} // namespace vkd
