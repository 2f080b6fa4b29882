#include "VKD_A_BarDiameterCombo.h"

#include <VKD_QT_SignalBlocker.h>

#include <QKeyEvent>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int LongestPause = 1000; // ms between two typed characters of a diameter

bool isPartOfNumber(const QString& typed)
{
    return typed.size() == 1 &&
           (typed.at(0).isDigit() || typed == QLatin1String(".") || typed == QLatin1String(","));
}

QString plainNumber(QString typed)
{
    return typed.replace(QLatin1Char(','), QLatin1Char('.'));
}
} // namespace

VKD_A_BarDiameterCombo::VKD_A_BarDiameterCombo(QWidget* parent, const char* name)
    : VKD_QT4_ComboBox(parent, name)
{
    setAccessibleName(tr("Bar diameter"));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this](int chosen) {
        const int entry = typedEntry();
        if (chosen != (entry >= 0 ? entry : m_entryBefore)) // the user chose it in another way
            m_typed.clear();
    });
}

bool VKD_A_BarDiameterCombo::load(int index)
{
    const bool isLoaded = m_bars.load(index);
    refill();
    return isLoaded;
}

void VKD_A_BarDiameterCombo::setNotSetAllowed(bool isAllowed)
{
    m_isNotSetAllowed = isAllowed;
    refill();
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
        refill();
    VKD_QT4_ComboBox::changeEvent(event);
}

/// Lets the user type a diameter without the diameter sign with which the entries begin.
void VKD_A_BarDiameterCombo::keyPressEvent(QKeyEvent* event)
{
    if (isPartOfNumber(event->text()))
        return type(event->text());
    m_typed.clear();
    VKD_QT4_ComboBox::keyPressEvent(event);
}

void VKD_A_BarDiameterCombo::focusOutEvent(QFocusEvent* event)
{
    m_typed.clear();
    VKD_QT4_ComboBox::focusOutEvent(event);
}

/// Chooses a bar only if its diameter exactly matches the input. Any other input restores the
/// previous bar, because the first digits of the input may have chosen another bar, and shows a
/// tool tip. The first character after a pause starts a new diameter, unless the characters typed
/// so far are only the beginning of a bar's diameter.
void VKD_A_BarDiameterCombo::type(const QString& character)
{
    const bool isComplete = typedEntry() >= 0 || !isBeginning();
    if (m_typed.isEmpty() || (isComplete && m_lastKey.hasExpired(LongestPause))) {
        m_typed.clear();
        m_entryBefore = currentIndex();
    }
    m_lastKey.start();
    m_typed += character;
    const int entry = typedEntry();
    const QString shown = QStringLiteral("Ø") + m_typed;
    setCurrentIndex(entry >= 0 ? entry : m_entryBefore);
    if (entry >= 0)
        QToolTip::hideText();
    else
        QToolTip::showText(
            mapToGlobal(rect().bottomLeft()),
            isBeginning() ? shown + QChar(0x2026) : tr("There is no bar %1.").arg(shown), this);
}

/// Returns the index of the entry with the typed diameter, or -1.
int VKD_A_BarDiameterCombo::typedEntry() const
{
    bool isNumber = false;
    const float diameter = plainNumber(m_typed).toFloat(&isNumber);
    return isNumber ? findData(diameter) : -1;
}

/// Returns whether the diameter of an entry begins with the typed characters.
bool VKD_A_BarDiameterCombo::isBeginning() const
{
    for (int entry = 0; entry < count(); ++entry)
        if (QString::number(itemData(entry).toDouble()).startsWith(plainNumber(m_typed)))
            return true;
    return false;
}

void VKD_A_BarDiameterCombo::refill()
{
    const int entry = currentIndex();
    const bool isCallers = entry >= 0 && !currentData().isValid();
    fill(getCurrent());
    if (isCallers)
        selectSilently(entry);
}

/// Entries without a diameter belong to the caller. They stay above the diameters.
void VKD_A_BarDiameterCombo::fill(float current)
{
    const VKD_QT_SignalBlocker blocker(this);
    m_typed.clear(); // because m_entryBefore becomes invalid
    QVector<float> diameters = m_bars.diameters();
    const bool isExtra = !isOffered(current) && current != NotSet;
    const auto place = std::upper_bound(diameters.begin(), diameters.end(), current);
    int entry = int(place - diameters.begin()) - (isExtra ? 0 : 1);
    if (isExtra)
        diameters.insert(place, current);
    for (int i = count() - 1; i >= 0; --i)
        if (itemData(i).isValid())
            removeItem(i);
    const int first = count();
    for (float diameter : qAsConst(diameters))
        addItem(m_bars.getString(diameter), diameter);
    if (m_isNotSetAllowed)
        insertItem(first, tr("not set"), NotSet);
    entry = current == NotSet ? 0 : entry + int(m_isNotSetAllowed);
    setCurrentIndex(first + entry);
    m_hasExtra = isExtra;
}

void VKD_A_BarDiameterCombo::selectSilently(int entry)
{
    const VKD_QT_SignalBlocker blocker(this);
    m_typed.clear(); // the combo box may now show another row
    setCurrentIndex(entry);
}

bool VKD_A_BarDiameterCombo::isOffered(float diameter) const
{
    return (diameter == NotSet && m_isNotSetAllowed) || m_bars.diameters().contains(diameter);
}
