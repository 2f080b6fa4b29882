#include "fields/FieldMark.h"

#include "fields/FieldMessage.h"

#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace {
constexpr qreal Red = 0.0, Amber = 0.1; // hues

/// Returns a shade of red or amber that stands out against the field's background. Palettes have no
/// roles for these colours.
QColor markColour(FieldMarkKind kind, const QPalette& palette)
{
    const bool isLight = palette.color(QPalette::Base).lightnessF() > 0.5;
    return kind == FieldMarkKind::Refused ? QColor::fromHslF(Red, 0.85, isLight ? 0.42 : 0.68)
                                          : QColor::fromHslF(Amber, 1.0, isLight ? 0.36 : 0.6);
}

/// Returns a triangle for rejected text and a disc for an implausible value.
QPainterPath shape(FieldMarkKind kind, const QRectF& place)
{
    QPainterPath outline;
    if (kind == FieldMarkKind::Doubted) {
        outline.addEllipse(place);
        return outline;
    }
    outline.moveTo(place.center().x(), place.top());
    outline.lineTo(place.bottomRight());
    outline.lineTo(place.bottomLeft());
    outline.closeSubpath();
    return outline;
}
} // namespace

FieldMark::FieldMark(QWidget* field)
    : m_field(field)
{
}

bool FieldMark::set(FieldMarkKind kind, const QString& text)
{
    if (text.isEmpty())
        hideMessage();
    if (text == m_text)
        return false;
    if (m_text.isEmpty())
        m_about = m_field->accessibleDescription();
    m_field->setAccessibleDescription(text.isEmpty() ? m_about
                                                     : text + QLatin1Char('\n') + m_about);
    m_kind = text.isEmpty() ? FieldMarkKind::None : kind;
    m_text = text;
    return true;
}

int FieldMark::width() const
{
    return m_field->fontMetrics().ascent();
}

void FieldMark::paint(QPainter* painter, const QRect& place) const
{
    if (!isSet())
        return;
    QRectF sign(0, 0, width(), width());
    sign.moveCenter(QRectF(place).center());
    sign.moveRight(place.right() + 1);
    const QColor colour = markColour(m_kind, m_field->palette());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, 2));
    painter->drawRoundedRect(QRectF(m_field->rect()).adjusted(1, 1, -1, -1), 2, 2);
    painter->fillPath(shape(m_kind, sign), colour);
    QFont bold = m_field->font();
    bold.setBold(true);
    bold.setPixelSize(qMax(1, int(sign.height() * 0.75)));
    painter->setFont(bold);
    painter->setPen(m_field->palette().color(QPalette::Base));
    const bool isRefused = m_kind == FieldMarkKind::Refused;
    const Qt::Alignment side = isRefused ? Qt::AlignBottom : Qt::AlignVCenter;
    painter->drawText(sign, int(Qt::AlignHCenter | side),
                      isRefused ? QStringLiteral("!") : QStringLiteral("?"));
    painter->restore();
}

void FieldMark::showMessage()
{
    if (!m_field->isVisible())
        return;
    if (!m_message)
        m_message = new FieldMessage(m_field);
    m_message->showText(m_text);
}

void FieldMark::hideMessage()
{
    if (m_message)
        m_message->hide();
}
