#include "VKD_H_TableItems.h"

#include <algorithm>

namespace {
constexpr int UndefinedId = -99999;
} // namespace

VKD_H_TwHeaderItem::VKD_H_TwHeaderItem(int id, const QString& text, const QString& longText,
                                       bool withToolTip, Qt::Alignment alignment)
    : QTableWidgetItem(text, UserType)
    , m_id(id)
    , m_alignment(alignment)
{
    if (withToolTip)
        setToolTip(longText);
}

QTableWidgetItem* VKD_H_TwHeaderItem::createEmptyItem() const
{
    return aligned(new QTableWidgetItem);
}

QTableWidgetItem* VKD_H_TwHeaderItem::aligned(QTableWidgetItem* item) const
{
    item->setData(Qt::TextAlignmentRole, int(m_alignment));
    return item;
}

QTableWidgetItem* VKD_H_TwHeaderItem::clone() const
{
    return new VKD_H_TwHeaderItem(*this);
}

VKD_H_TwHeaderComboBoxItem::VKD_H_TwHeaderComboBoxItem(int id, const std::list<ComboList>& entries,
                                                       const QString& text, const QString& longText,
                                                       bool withToolTip, Qt::Alignment alignment)
    : VKD_H_TwHeaderItem(id, text, longText, withToolTip, alignment)
    , m_entries(entries.begin(), entries.end())
{
}

QTableWidgetItem* VKD_H_TwHeaderComboBoxItem::createEmptyItem() const
{
    return aligned(new VKD_H_TwSimpleComboBoxItem(m_entries));
}

QTableWidgetItem* VKD_H_TwHeaderComboBoxItem::clone() const
{
    return new VKD_H_TwHeaderComboBoxItem(*this);
}

QTableWidgetItem* VKD_H_TwHeaderCheckBoxItem::createEmptyItem() const
{
    return aligned(new VKD_H_TwSimpleCheckBoxItem);
}

QTableWidgetItem* VKD_H_TwHeaderCheckBoxItem::clone() const
{
    return new VKD_H_TwHeaderCheckBoxItem(*this);
}

VKD_H_TwSimpleComboBoxItem::VKD_H_TwSimpleComboBoxItem(const QVector<ComboList>& entries)
    : QTableWidgetItem(UserType)
    , m_entries(entries)
{
}

int VKD_H_TwSimpleComboBoxItem::getCurrentId() const
{
    const QString shown = text();
    const auto entry =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [&shown](const ComboList& candidate) { return candidate.text == shown; });
    return entry == m_entries.end() ? UndefinedId : entry->id;
}

QTableWidgetItem* VKD_H_TwSimpleComboBoxItem::clone() const
{
    return new VKD_H_TwSimpleComboBoxItem(*this);
}

VKD_H_TwSimpleCheckBoxItem::VKD_H_TwSimpleCheckBoxItem()
    : QTableWidgetItem(UserType)
{
    setFlags((flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsEditable);
    setCheckState(Qt::Unchecked);
}

QTableWidgetItem* VKD_H_TwSimpleCheckBoxItem::clone() const
{
    return new VKD_H_TwSimpleCheckBoxItem(*this);
}
