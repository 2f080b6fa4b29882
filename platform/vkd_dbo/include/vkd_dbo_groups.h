#pragma once

#include "vkd_dbo_export.h"

#include <QString>
#include <QVector>

namespace vkd {
namespace dbo {

/// How many elements of each sort a group holds.
struct GroupContents
{
    int quads = 0;
    int beams = 0;
    int trusses = 0;
    int cables = 0;
    int springs = 0;
    int bricks = 0;
};

/// Whether the design of area elements finds something to work on in such a group.
inline bool hasAreas(const GroupContents& contents)
{
    return contents.quads > 0;
}

/// A primary group, or a secondary one, which has a name in place of a number and holds quads and
/// beams only.
struct GroupSummary
{
    int number = 0; ///< 0 for a secondary group
    QString name;   ///< empty for a primary group
    QString title;
    GroupContents contents;
};

/// The groups of the project at this database index in the order of the model. The elements are
/// read once; those of a group that the model does not list count for nothing. Empty for a project
/// without a model.
VKD_DBO_EXPORT QVector<GroupSummary> readGroups(int index);
VKD_DBO_EXPORT QVector<GroupSummary> readSecondaryGroups(int index);

} // namespace dbo
} // namespace vkd
