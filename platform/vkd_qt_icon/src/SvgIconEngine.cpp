#include "SvgIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace vkd {
namespace qt {

namespace {
const struct
{
    const char* colour;
    QPalette::ColorRole role;
} Colours[] = {
    {"#000000", QPalette::WindowText},
    {"#0000ff", QPalette::Highlight},
    {"#ffffff", QPalette::Base},
    {"#fffffe", QPalette::HighlightedText},
};

QPalette paletteFor(QIcon::Mode mode)
{
    QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) {
        palette.setCurrentColorGroup(QPalette::Disabled);
        // Some styles do not change the highlight colour; a disabled button must not look enabled.
        palette.setColor(QPalette::Highlight, palette.color(QPalette::Mid));
    }
    return palette;
}

/// Replaces the colours in a single pass, because a colour of the palette may equal a placeholder.
QByteArray inColoursOf(const QPalette& palette, const QByteArray& svg)
{
    QByteArray result;
    int from = 0;
    for (int at = svg.indexOf('#'); at >= 0; at = svg.indexOf('#', at + 1))
        for (const auto& [colour, role] : Colours)
            if (svg.mid(at, 7) == colour) {
                result += svg.mid(from, at - from) + palette.color(role).name().toLatin1();
                from = at + 7;
            }
    return result + svg.mid(from);
}
} // namespace

SvgIconEngine::SvgIconEngine(const QString& name, const QByteArray& svg)
    : m_name(name)
    , m_svg(svg)
{
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const int side = qMin(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QSvgRenderer(inColoursOf(paletteFor(mode), m_svg)).render(painter, square);
    painter->restore();
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    const QString key = QStringLiteral("%1 %2 %3 %4 %5")
                            .arg(m_name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode)
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIconEngine* SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

} // namespace qt
} // namespace vkd
