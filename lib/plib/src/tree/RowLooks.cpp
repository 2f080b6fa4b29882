#include "tree/RowLooks.h"

#include "tree/outputTreeIcons.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

namespace plib {

RowLooks::Looks::Looks(const QString& rowText, int number, const QIcon& icon)
    : text(rowText)
    , unchecked(rowText)
    , checked(rowText)
{
    using namespace vkd::plib::widgetgraphicaloutput;
    constexpr int RowLevel = 3;
    for (GraphicalOutputTreeWidgetItem* look : {&unchecked, &checked}) {
        look->setIcon(0, icon);
        look->setData(0, LevelRole, RowLevel);
        look->setData(0, LoadCaseRole, number);
    }
    checked.setCheckState(0, Qt::Checked);
}

RowLooks::RowLooks(vkd::Language language)
    : m_icon(rowIcon(language))
{
}

const GraphicalOutputTreeWidgetItem& RowLooks::of(const QString& text, int number, bool checked)
{
    std::unique_ptr<const Looks>& looks = m_looks[{text.constData(), text.size(), number}];
    if (!looks)
        looks = std::make_unique<const Looks>(text, number, m_icon);
    return checked ? looks->checked : looks->unchecked;
}

} // namespace plib
