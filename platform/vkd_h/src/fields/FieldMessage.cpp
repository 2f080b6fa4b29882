#include "fields/FieldMessage.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QToolTip>

namespace {
constexpr int ShownTime = 10000; // ms
constexpr int Padding = 4;
constexpr int Distance = 2;
} // namespace

FieldMessage::FieldMessage(QWidget* field)
    : QLabel(field, Qt::ToolTip)
{
    setObjectName(QStringLiteral("fieldMessage"));
    setTextFormat(Qt::PlainText);
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Plain);
    setMargin(Padding);
    setFont(QToolTip::font());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAttribute(Qt::WA_ShowWithoutActivating);
    qApp->installEventFilter(this);
    m_end.setSingleShot(true);
    m_end.setInterval(ShownTime);
    connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
}

void FieldMessage::showText(const QString& text)
{
    setPalette(QToolTip::palette());
    setText(text);
    resize(sizeHint()); // adjustSize() truncates long lines on a small screen
    const QWidget* field = parentWidget();
    const QRect area = field->screen()->availableGeometry();
    QPoint place = field->mapToGlobal(field->rect().bottomLeft()) + QPoint(0, Distance);
    place.setX(qBound(area.left(), place.x(), qMax(area.left(), area.right() - width())));
    if (place.y() + height() > area.bottom())
        place.setY(field->mapToGlobal(QPoint()).y() - height() - Distance);
    move(place);
    show();
    m_end.start();
}

bool FieldMessage::eventFilter(QObject* watched, QEvent* event)
{
    // The window receives input before its widgets, which may show the message again.
    const QEvent::Type type = event->type();
    if (watched->isWindowType() && (type == QEvent::KeyPress || type == QEvent::MouseButtonPress))
        hide();
    return QLabel::eventFilter(watched, event);
}
