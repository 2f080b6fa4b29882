#include "VKD_A_BarDiameterCombo.h"

#include <VKD_QT_SignalBlocker.h>

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

VKD_A_BarDiameterCombo::VKD_A_BarDiameterCombo(QWidget* parent, const char* name)
    : VKD_QT4_ComboBox(parent, name)
{
    setAccessibleName(tr("Bar diameter"));
}

bool VKD_A_BarDiameterCombo::load(int index)
{
    const bool isLoaded = m_bars.load(index);
    fill(getCurrent());
    return isLoaded;
}

void VKD_A_BarDiameterCombo::setNotSetAllowed(bool isAllowed)
{
    m_isNotSetAllowed = isAllowed;
    fill(getCurrent());
}

bool VKD_A_BarDiameterCombo::setCurrent(float diameter)
{
    const int entry = m_hasExtra ? -1 : findData(diameter);
    if (entry < 0)
        fill(diameter);
    else
        selectSilently(entry);
    return isOffered(diameter);
}

float VKD_A_BarDiameterCombo::getCurrent() const
{
    const QVariant diameter = currentData();
    return diameter.isValid() ? diameter.toFloat() : NotSet;
}

void VKD_A_BarDiameterCombo::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        fill(getCurrent());
    VKD_QT4_ComboBox::changeEvent(event);
}

/// Lets the user find a diameter by typing its digits, although the entries begin with the diameter
/// sign.
void VKD_A_BarDiameterCombo::keyPressEvent(QKeyEvent* event)
{
    const QString digit = event->text();
    if (digit.size() != 1 || !digit.at(0).isDigit())
        return VKD_QT4_ComboBox::keyPressEvent(event);
    if (!m_lastDigit.isValid() || m_lastDigit.hasExpired(QApplication::keyboardInputInterval()))
        m_typed.clear();
    m_lastDigit.start();
    m_typed += digit;
    const int entry = findText(m_bars.getString(m_typed.toFloat()), Qt::MatchStartsWith);
    if (entry >= 0)
        setCurrentIndex(entry);
}

void VKD_A_BarDiameterCombo::fill(float current)
{
    const VKD_QT_SignalBlocker blocker(this);
    QVector<float> diameters = m_bars.diameters();
    const bool isExtra = !isOffered(current) && current != NotSet;
    const auto place = std::upper_bound(diameters.begin(), diameters.end(), current);
    int entry = int(place - diameters.begin()) - (isExtra ? 0 : 1);
    if (isExtra)
        diameters.insert(place, current);
    clear();
    for (float diameter : qAsConst(diameters))
        addItem(m_bars.getString(diameter), diameter);
    if (m_isNotSetAllowed)
        insertItem(0, tr("not set"), NotSet);
    entry = current == NotSet ? 0 : entry + int(m_isNotSetAllowed);
    setCurrentIndex(entry);
    m_hasExtra = isExtra;
}

void VKD_A_BarDiameterCombo::selectSilently(int entry)
{
    const VKD_QT_SignalBlocker blocker(this);
    setCurrentIndex(entry);
}

bool VKD_A_BarDiameterCombo::isOffered(float diameter) const
{
    return (diameter == NotSet && m_isNotSetAllowed) || m_bars.diameters().contains(diameter);
}
