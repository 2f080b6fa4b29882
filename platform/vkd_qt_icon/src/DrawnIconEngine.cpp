#include "DrawnIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace vkd {
namespace qt {

DrawnIconEngine::DrawnIconEngine(Drawing drawing)
    : m_drawing(drawing)
{
}

void DrawnIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) {
        palette.setCurrentColorGroup(QPalette::Disabled);
        // Some styles do not change the highlight colour; a disabled button must not look enabled.
        palette.setColor(QPalette::Highlight, palette.color(QPalette::Mid));
    }
    const int side = qMin(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.center() + QPointF(0.5 - side / 2.0, 0.5 - side / 2.0));
    painter->scale(side / 16.0, side / 16.0);
    painter->setBrush(Qt::NoBrush);
    m_drawing(*painter, palette);
    painter->restore();
}

QPixmap DrawnIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

QIconEngine* DrawnIconEngine::clone() const
{
    return new DrawnIconEngine(*this);
}

} // namespace qt
} // namespace vkd
