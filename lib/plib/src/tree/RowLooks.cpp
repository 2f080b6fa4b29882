#include "tree/RowLooks.h"

#include "tree/outputTreeIcons.h"
#include "VKD_P_WidgetGraphicalOutput_Role.h"

namespace plib {

RowLooks::RowLooks(vkd::Language language)
    : m_language(language)
{
}

const QTreeWidgetItem& RowLooks::of(const QString& text, int number, bool checked)
{
    Looks& looks = find(text, number);
    auto& look = checked ? looks.checked : looks.unchecked;
    if (!look)
        look = newLook(text, number, checked ? Qt::Checked : Qt::Unchecked);
    return *look;
}

const QTreeWidgetItem& RowLooks::like(const QTreeWidgetItem& row, int number, bool checked)
{
    const QVariant text = row.data(0, Qt::DisplayRole);
    Looks& looks = find(*static_cast<const QString*>(text.constData()), number);
    auto& look = checked ? looks.checked : looks.unchecked;
    if (!look) {
        auto copy = std::make_unique<QTreeWidgetItem>(row);
        copy->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
        look = std::move(copy);
    }
    return *look;
}

RowLooks::Looks& RowLooks::find(const QString& text, int number)
{
    if (m_next < m_looks.size() && m_looks[m_next].belongTo(text, number))
        return m_looks[m_next++];
    m_next = m_places.value({text.constData(), number}, m_looks.size());
    if (m_next == m_looks.size() || !m_looks[m_next].belongTo(text, number)) {
        m_next = m_looks.size();
        m_places.insert({text.constData(), number}, m_next);
        m_looks.push_back({text, number, nullptr, nullptr});
    }
    return m_looks[m_next++];
}

/// Sets the check state first, because it is read most often and an item searches its roles in
/// order.
std::unique_ptr<const QTreeWidgetItem> RowLooks::newLook(const QString& text, int number,
                                                         Qt::CheckState state)
{
    using namespace vkd::plib::widgetgraphicaloutput;
    if (m_icon.isNull())
        m_icon = rowIcon(m_language);
    auto look = std::make_unique<QTreeWidgetItem>();
    look->setCheckState(0, state);
    look->setText(0, text);
    look->setIcon(0, m_icon);
    look->setData(0, LevelRole, RowLevel);
    look->setData(0, LoadCaseRole, number);
    return look;
}

} // namespace plib
