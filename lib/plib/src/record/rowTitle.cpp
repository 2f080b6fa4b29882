#include "record/rowTitle.h"

#include <vkd_dbo_groupTexts.h>

#include <QCoreApplication>

#include <algorithm>

namespace plib {

namespace {
struct TitleText
{
    Q_DECLARE_TR_FUNCTIONS(RowTitle)
};

bool hasRemaining(const std::vector<int>& groups)
{
    return std::find(groups.begin(), groups.end(), -1) != groups.end();
}

QString groupsTitle(const std::vector<int>& groups)
{
    const auto others = int(groups.size()) - std::count(groups.begin(), groups.end(), -1);
    if (others == 0)
        return groups.empty() ? TitleText::tr("no groups") : groupList(groups);
    const QString text = others == 1 ? TitleText::tr("group %1") : TitleText::tr("groups %1");
    return text.arg(groupList(groups));
}
} // namespace

QString groupList(const std::vector<int>& groups)
{
    const QString named = vkd::dbo::groupRanges(groups); // without the remaining groups
    if (!hasRemaining(groups))
        return named;
    return named.isEmpty() ? TitleText::tr("remaining groups")
                           : TitleText::tr("%1 and remaining groups").arg(named);
}

/// Ranges of rows have the same form as ranges of groups.
QString rowList(std::vector<int> rows)
{
    for (int& row : rows)
        ++row;
    return vkd::dbo::groupRanges(rows);
}

QString rowTitle(const DesignRowList& rows, const std::set<int>& numbers)
{
    std::vector<int> groups;
    for (int number : numbers) {
        const std::vector<int>& here = rows[std::size_t(number)].groups;
        groups.insert(groups.end(), here.begin(), here.end());
    }
    const QString title =
        numbers.size() == 1 ? TitleText::tr("Row %1: %2") : TitleText::tr("Rows %1: %2");
    return title.arg(rowList({numbers.begin(), numbers.end()}), groupsTitle(groups));
}

} // namespace plib
