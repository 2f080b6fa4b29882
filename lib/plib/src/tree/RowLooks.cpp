#include "tree/RowLooks.h"

#include "tree/outputTreeIcons.h"

namespace plib {

RowLooks::Looks::Looks(const QString& rowText, const QIcon& icon)
    : text(rowText)
    , unchecked(rowText)
    , checked(rowText)
{
    unchecked.setIcon(0, icon);
    checked.setIcon(0, icon);
    checked.setCheckState(0, Qt::Checked);
}

RowLooks::RowLooks(bool english)
    : m_icon(rowIcon(english))
{
}

const GraphicalOutputTreeWidgetItem& RowLooks::of(const QString& text, bool checked)
{
    std::unique_ptr<const Looks>& looks = m_looks[{text.constData(), text.size()}];
    if (!looks)
        looks = std::make_unique<const Looks>(text, m_icon);
    return checked ? looks->checked : looks->unchecked;
}

} // namespace plib
