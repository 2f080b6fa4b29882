#include "window/script/ScriptGutter.h"

#include "window/script/ScriptView.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace workbench {

namespace {
constexpr int Space = 4; // pixels, on both sides of the numbers
constexpr int LeastDigits = 3;
} // namespace

ScriptGutter::ScriptGutter(ScriptView* view)
    : QWidget(view)
    , m_view(view)
{
    setObjectName(QStringLiteral("ScriptGutter"));
}

int ScriptGutter::neededWidth() const
{
    const int digits = QString::number(m_view->lines().count()).size();
    return 2 * Space +
           qMax(LeastDigits, digits) * m_view->fontMetrics().horizontalAdvance(QLatin1Char('9'));
}

bool ScriptGutter::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto help = static_cast<QHelpEvent*>(event);
    const int line = m_view->lineNear(help->y());
    const int removed =
        qMax(m_view->marks().removedBefore(line), m_view->marks().removedBefore(line + 1));
    if (removed > 0)
        QToolTip::showText(help->globalPos(), tr("Lines removed here: %1").arg(removed), this);
    else
        QToolTip::hideText();
    return true;
}

void ScriptGutter::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_view->chooseLine(m_view->lineNear(event->pos().y()));
}

/// Accepts the release, because the script has not received the press.
void ScriptGutter::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void ScriptGutter::wheelEvent(QWheelEvent* event)
{
    QApplication::sendEvent(m_view->viewport(), event);
}

void ScriptGutter::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
    if (m_view->lines().text().isEmpty())
        return;
    painter.setFont(m_view->font());
    for (const ScriptView::LinePlace& place : m_view->visiblePlaces()) {
        const QRect box(0, place.top, width(), place.height);
        const bool isOfPlot = m_view->marks().isOfPlot(place.line);
        if (isOfPlot)
            painter.fillRect(box, palette().highlight());
        painter.setPen(
            palette().color(isOfPlot ? QPalette::HighlightedText : QPalette::WindowText));
        painter.drawText(box.adjusted(Space, 0, -Space, 0), Qt::AlignRight | Qt::AlignTop,
                         QString::number(place.line + 1));
        if (m_view->marks().removedBefore(place.line) == 0)
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_view->colours().removed());
        const QPoint tip(0, place.top);
        painter.drawConvexPolygon(
            QPolygon({tip - QPoint(0, Space), tip + QPoint(Space + 2, 0), tip + QPoint(0, Space)}));
    }
}

} // namespace workbench
