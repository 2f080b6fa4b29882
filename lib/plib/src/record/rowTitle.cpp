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

QString groupsTitle(const std::vector<int>& groups)
{
    const bool hasRemaining = std::find(groups.begin(), groups.end(), -1) != groups.end();
    const std::size_t others = groups.size() - (hasRemaining ? 1 : 0);
    if (others == 0)
        return hasRemaining ? TitleText::tr("remaining groups") : TitleText::tr("no groups");
    const QString text = others == 1 ? TitleText::tr("group %1") : TitleText::tr("groups %1");
    const QString listed = text.arg(vkd::dbo::groupRanges(groups));
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
    return title.arg(vkd::dbo::groupRanges(shown), groupsTitle(groups));
}

} // namespace plib
