#include "dialogs/ElidedLabel.h"

#include <QHelpEvent>
#include <QToolTip>

namespace plib {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setFullText(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    elide();
}

void ElidedLabel::elide()
{
    setText(fontMetrics().elidedText(m_text, Qt::ElideRight, contentsRect().width()));
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || text() == m_text)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), m_text, this);
    return true;
}

} // namespace plib
