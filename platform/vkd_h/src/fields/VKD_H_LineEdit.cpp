#include "VKD_H_LineEdit.h"

#include "fields/FieldMark.h"
#include "fields/presetList.h"
#include "fields/refusalText.h"
#include "vkd_h_numberText.h"

#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFrame>

#include <cmath>
#include <utility>

namespace {
constexpr int Gap = 4; // around the number, in pixels
constexpr int LongestQuote = 24;

bool isSame(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

QColor dimmed(QColor colour)
{
    colour.setAlphaF(0.6);
    return colour;
}

QString quoted(const QString& text)
{
    const QString simple = text.simplified();
    return simple.size() > LongestQuote ? simple.left(LongestQuote) + QChar(0x2026) : simple;
}
} // namespace

VKD_H_LineEdit::VKD_H_LineEdit(QWidget* parent, StructLineEdit* description, const char* objectName,
                               const QString& text, const QString& secondText, bool showsUnit)
    : QLineEdit(parent)
    , m_description(description ? *description : vkd_h_defaultStructLineEdit(-1))
    , m_name(text)
    , m_explanation(secondText)
    , m_showsUnit(showsUnit)
    , m_value(m_description.value)
    , m_told(m_value)
    , m_plausible(vkd_h_plausibleRange(m_description.dimension))
    , m_mark(new FieldMark(this))
{
    setObjectName(QLatin1String(objectName));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // QLineEdit emits textEdited() before textChanged(), so takeText() knows whether the user
    // changed the text.
    connect(this, &QLineEdit::textEdited, this, [this] { m_isTyped = true; });
    connect(this, &QLineEdit::textChanged, this, &VKD_H_LineEdit::takeText);
    setAccessibleDescription(m_explanation);
    setTips();
    setMargins();
    setVal(m_value);
}

VKD_H_LineEdit::~VKD_H_LineEdit() = default;

void VKD_H_LineEdit::setVal(double value)
{
    m_value = m_told = value;
    m_shown = vkd_h_numberText(value, m_description);
    setText(m_shown);
    m_fault.clear(); // setText() does not emit a signal if the text has not changed
    updateMark();
    followPresets();
}

double VKD_H_LineEdit::getVal() const
{
    if (text() == m_shown)
        return m_value;
    const VkdNumberReading reading = vkd_h_readNumber(text(), m_description);
    return reading.state == VkdNumberState::Accepted ? reading.value : m_value;
}

QString VKD_H_LineEdit::refusal() const
{
    if (text() == m_shown)
        return QString();
    const VkdNumberReading reading = vkd_h_readNumber(text(), m_description);
    return refusalText(reading.state, quoted(text()), m_description);
}

void VKD_H_LineEdit::showRefusal()
{
    setFocus();
    updateMark();
    m_mark->showMessage();
}

QString VKD_H_LineEdit::doubt() const
{
    return refusal().isEmpty() ? doubtText(getVal(), m_plausible, m_description) : QString();
}

void VKD_H_LineEdit::setPlausibleRange(const VkdPlausibleRange& range)
{
    m_plausible = range;
    updateMark();
}

void VKD_H_LineEdit::setFault(const QString& reason)
{
    m_fault = reason;
    updateMark();
}

void VKD_H_LineEdit::clearFault()
{
    setFault(QString());
}

/// Text that the user did not type is a preset and takes effect immediately. Escape does not undo
/// it.
void VKD_H_LineEdit::takeText(const QString& text)
{
    const bool isTyped = std::exchange(m_isTyped, false);
    const VkdNumberReading reading = vkd_h_readNumber(text, m_description);
    if (!isTyped && text != m_shown && reading.state == VkdNumberState::Accepted) {
        m_value = reading.value;
        m_shown = text;
    }
    m_fault.clear();
    updateMark(isTyped && reading.state == VkdNumberState::Incomplete);
    if (isTyped && !m_mark->text().isEmpty() && hasFocus())
        m_mark->showMessage();
    followPresets();
    if (!isSame(m_told, getVal())) {
        m_told = getVal();
        Q_EMIT valueChanged();
    }
}

/// Accepts and reformats the current text when the user has finished typing.
void VKD_H_LineEdit::keepText()
{
    m_value = getVal();
    m_shown = m_description.flags & StructLineEdit::TextForPrograms
                  ? text()
                  : vkd_h_numberText(m_value, m_description);
    if (text() != m_shown)
        setText(m_shown);
}

bool VKD_H_LineEdit::restoreText()
{
    if (text() == m_shown)
        return false;
    setText(m_shown);
    selectAll();
    return true;
}

/// Removes the inline completion of a combo box, which would complete a typed "1" to the entry
/// "10".
void VKD_H_LineEdit::dropInlineCompletion()
{
    if (completer() && completer()->completionMode() == QCompleter::InlineCompletion)
        setCompleter(nullptr);
}

void VKD_H_LineEdit::setTips()
{
    const QString unit = vkd_h_suffixText(m_description);
    const QString name = unit.isEmpty()     ? m_name
                         : m_name.isEmpty() ? unit
                                            : tr("%1 in %2").arg(m_name, unit);
    setAccessibleName(name);
    QStringList lines{m_mark->text(), name, m_explanation};
    lines.removeAll(QString());
    setToolTip(lines.join(QLatin1Char('\n')));
}

/// Updates the mark. `mayGrow` suppresses the mark for incomplete text that can still become a
/// number.
void VKD_H_LineEdit::updateMark(bool mayGrow)
{
    const QString reason = mayGrow ? QString() : refusal();
    const bool isRefused = !reason.isEmpty() || !m_fault.isEmpty();
    const QString text =
        !reason.isEmpty() ? reason + QLatin1Char('\n') + acceptedValueText(m_value, m_description)
        : !m_fault.isEmpty() ? m_fault
                             : doubt();
    if (!m_mark->set(isRefused ? FieldMarkKind::Refused : FieldMarkKind::Doubted, text))
        return;
    setTips();
    setMargins();
    update();
}

void VKD_H_LineEdit::setMargins()
{
    const auto widthOf = [this](const QString& text) {
        return text.isEmpty() ? 0 : fontMetrics().horizontalAdvance(text) + Gap;
    };
    const int unit = m_showsUnit ? widthOf(vkd_h_suffixText(m_description)) : 0;
    const int mark = m_mark->isSet() ? m_mark->width() + Gap : 0;
    setTextMargins(widthOf(m_description.prefix), 0, unit + mark, 0);
    updateGeometry();
}

QComboBox* VKD_H_LineEdit::comboBox() const
{
    auto combo = qobject_cast<QComboBox*>(parentWidget());
    return combo && combo->lineEdit() == this ? combo : nullptr;
}

/// Selects the combo box entry that matches the displayed value, even if the user typed the value.
void VKD_H_LineEdit::followPresets()
{
    QComboBox* combo = comboBox();
    if (!combo)
        return;
    combo->installEventFilter(this);
    const bool isValue = refusal().isEmpty() && !text().isEmpty();
    markPreset(combo, isValue ? presetAt(*combo, getVal(), m_description) : -1);
}

/// From a value between two presets, Up and Down select the adjacent presets.
bool VKD_H_LineEdit::stepToPreset(int key)
{
    QComboBox* combo = comboBox();
    const bool isGreater = key == Qt::Key_Down || key == Qt::Key_PageDown;
    if (!isGreater && key != Qt::Key_Up && key != Qt::Key_PageUp)
        return false;
    if (!combo || combo->currentIndex() >= 0 || text().isEmpty() || !refusal().isEmpty())
        return false;
    const int entry = presetBeside(*combo, getVal(), isGreater, m_description);
    if (entry >= 0) {
        combo->setCurrentIndex(entry);
        Q_EMIT combo->activated(entry);
    }
    return true;
}

bool VKD_H_LineEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == comboBox() && event->type() == QEvent::KeyPress) {
        const auto press = static_cast<QKeyEvent*>(event);
        const bool isPlain = !(press->modifiers() & ~Qt::KeypadModifier);
        return isPlain && stepToPreset(press->key());
    }
    return QLineEdit::eventFilter(watched, event);
}

/// Always includes space for the symbol of a mark, so that a mark does not move other widgets.
QSize VKD_H_LineEdit::sizeHint() const
{
    const QMargins around = textMargins();
    const int number = fontMetrics().horizontalAdvance(QLatin1String("-99999,00"));
    // While the mark is set, the margins include this space.
    const int symbol = m_mark->isSet() ? 0 : m_mark->width() + Gap;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize content(around.left() + number + symbol + around.right() + 2 * Gap,
                        QLineEdit::sizeHint().height());
    const QSize framed = style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this);
    return {framed.width(), content.height()};
}

QSize VKD_H_LineEdit::minimumSizeHint() const
{
    return sizeHint();
}

bool VKD_H_LineEdit::event(QEvent* event)
{
    // The Escape key that restores the text must not trigger a shortcut of the dialog.
    if (event->type() == QEvent::ShortcutOverride && text() != m_shown &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void VKD_H_LineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
        if (text() == m_shown && !(m_description.flags & StructLineEdit::TextForPrograms))
            setVal(m_value);
        updateMark();
        setTips();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange: setMargins(); break;
    case QEvent::ActivationChange: m_mark->hideMessage(); break;
    default: break;
    }
}

void VKD_H_LineEdit::keyPressEvent(QKeyEvent* event)
{
    dropInlineCompletion();
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && restoreText())
        return;
    if (isEnter && !refusal().isEmpty()) { // must not trigger the dialog's OK button
        updateMark();
        m_mark->showMessage();
        return;
    }
    if (isEnter)
        keepText();
    QLineEdit::keyPressEvent(event);
}

void VKD_H_LineEdit::focusInEvent(QFocusEvent* event)
{
    dropInlineCompletion();
    const bool wasIn = std::exchange(m_wasIn, false);
    m_selectsAll = event->reason() == Qt::MouseFocusReason;
    QLineEdit::focusInEvent(event);
    if (!wasIn && !m_selectsAll) // after a click, select when the mouse button is released
        selectAll();
    if (!m_mark->text().isEmpty() && event->reason() != Qt::PopupFocusReason)
        m_mark->showMessage();
}

void VKD_H_LineEdit::focusOutEvent(QFocusEvent* event)
{
    const bool staysIn =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    const bool isRefused = !refusal().isEmpty();
    if (!staysIn && !isRefused)
        keepText();
    m_wasIn = staysIn;
    QLineEdit::focusOutEvent(event);
    if (staysIn || !isRefused)
        return;
    updateMark();
    m_mark->showMessage();
}

void VKD_H_LineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_selectsAll, false) && !hasSelectedText())
        selectAll();
}

void VKD_H_LineEdit::hideEvent(QHideEvent* event)
{
    m_mark->hideMessage();
    QLineEdit::hideEvent(event);
}

void VKD_H_LineEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPainter painter(this);
    QRect place = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    place.adjust(Gap / 2, 0, -Gap / 2, 0);
    m_mark->paint(&painter, place);
    if (m_mark->isSet())
        place.setRight(place.right() - m_mark->width() - Gap);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(dimmed(palette().color(group, QPalette::Text)));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, m_description.prefix);
    if (m_showsUnit)
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, vkd_h_suffixText(m_description));
}
