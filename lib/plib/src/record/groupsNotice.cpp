#include "record/groupsNotice.h"

#include "record/rowTitle.h"
#include "record/sharedGroups.h"

#include <vkd_dbo_packedNames.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <iterator>

namespace plib {

namespace {
struct NoticeText
{
    Q_DECLARE_TR_FUNCTIONS(GroupsNotice)
};

std::vector<int> ofKind(const std::vector<int>& groups, bool secondary)
{
    std::vector<int> found;
    std::copy_if(groups.begin(), groups.end(), std::back_inserter(found), [secondary](int group) {
        return secondary ? vkd::dbo::isSecondaryGroup(group) : vkd::dbo::isPrimaryGroup(group);
    });
    return found;
}

QString sharedNotice(const DesignRowList& rows, int row)
{
    std::vector<int> groups;
    std::vector<int> others;
    for (const SharedGroup& shared : sharedGroups(rows)) {
        if (std::find(shared.rows.begin(), shared.rows.end(), row) == shared.rows.end())
            continue;
        groups.push_back(shared.group);
        for (int other : shared.rows)
            if (other != row)
                others.push_back(other);
    }
    if (groups.empty())
        return QString();
    return NoticeText::tr("Groups also in row %1: %2.").arg(rowList(others), groupList(groups));
}

QString lossNotice(const std::vector<int>& before, const std::vector<int>& after, int row)
{
    for (bool secondary : {false, true}) {
        const std::vector<int> lost = ofKind(before, secondary);
        if (lost.empty() || !ofKind(after, secondary).empty())
            continue;
        return NoticeText::tr("Removed from row %1: %2 (see Undo).")
            .arg(QString::number(row + 1), groupList(lost));
    }
    return QString();
}
} // namespace

QString groupsNotice(const DesignRowList& rows, int row, const std::vector<int>& before)
{
    QStringList sentences{lossNotice(before, rows[std::size_t(row)].groups, row),
                          sharedNotice(rows, row)};
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

} // namespace plib
