#include "record/rowTitle.h"

#include "record/groupRanges.h"

#include <algorithm>
#include <QCoreApplication>

namespace plib {

namespace {
struct TitleText
{
    Q_DECLARE_TR_FUNCTIONS(RowTitle)
};

QString groupsTitle(std::vector<int> groups)
{
    const auto remaining = std::find(groups.begin(), groups.end(), -1);
    const bool hasRemaining = remaining != groups.end();
    if (hasRemaining)
        groups.erase(remaining);
    if (groups.empty())
        return hasRemaining ? TitleText::tr("remaining groups") : TitleText::tr("no groups");
    const QString text =
        groups.size() == 1 ? TitleText::tr("group %1") : TitleText::tr("groups %1");
    const QString listed = text.arg(groupRanges(groups));
    return hasRemaining ? TitleText::tr("%1 and remaining groups").arg(listed) : listed;
}
} // namespace

QString rowTitle(const DesignRowList& rows, const std::set<int>& numbers)
{
    std::vector<int> shown;
    std::vector<int> groups;
    for (int number : numbers) {
        const std::vector<int>& here = rows[std::size_t(number)].groups;
        shown.push_back(number + 1);
        groups.insert(groups.end(), here.begin(), here.end());
    }
    const QString title =
        numbers.size() == 1 ? TitleText::tr("Row %1: %2") : TitleText::tr("Rows %1: %2");
    return title.arg(groupRanges(shown), groupsTitle(groups));
}

} // namespace plib
