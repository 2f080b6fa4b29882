#include "VKD_H_TwHeaderLineEditItem.h"

#include "vkd_h_numberText.h"

VKD_H_TwHeaderLineEditItem::VKD_H_TwHeaderLineEditItem(int id, const StructLineEdit& description,
                                                       const QString& text, const QString& longText,
                                                       bool withToolTip, Qt::Alignment alignment)
    : VKD_H_TwHeaderItem(id, text, longText, withToolTip, alignment)
    , m_description(description)
{
}

StructLineEdit VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(int code)
{
    return vkd_h_defaultStructLineEdit(code);
}

QTableWidgetItem* VKD_H_TwHeaderLineEditItem::createEmptyItem() const
{
    return aligned(new VKD_H_TwSimpleLineEditItem(m_description));
}

QTableWidgetItem* VKD_H_TwHeaderLineEditItem::clone() const
{
    return new VKD_H_TwHeaderLineEditItem(*this);
}

VKD_H_TwSimpleLineEditItem::VKD_H_TwSimpleLineEditItem(const StructLineEdit& description)
    : QTableWidgetItem(UserType)
    , m_description(description)
    , m_value(description.notSet)
{
    setVal(description.value);
}

void VKD_H_TwSimpleLineEditItem::setVal(double value)
{
    m_value = value;
    m_shown = vkd_h_numberText(value, m_description);
    setText(m_shown);
}

double VKD_H_TwSimpleLineEditItem::getVal(bool* ok) const
{
    const QString shown = text();
    const double value = shown == m_shown ? m_value : vkd_h_readNumber(shown, m_description).value;
    if (ok)
        *ok = !vkd_h_isNotSet(value, m_description);
    return value;
}

QTableWidgetItem* VKD_H_TwSimpleLineEditItem::clone() const
{
    return new VKD_H_TwSimpleLineEditItem(*this);
}
