#include "geometry/viewcamera.h"
#include "view/symbols.h"
#include "WidgetTestSupport.h"

#include <QImage>
#include <QPainter>

using namespace vkd::aniview;

Q_DECLARE_METATYPE(Position)

namespace {
const QPointF Node(50, 50);
const SymbolColours Colours{Qt::black, Qt::white};
constexpr double Size = 20.0;

/// A drawing on red paper.
struct Drawing
{
    explicit Drawing(const std::function<void(QPainter&)>& draw)
    {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::red);
        QPainter painter(&image);
        draw(painter);
        painter.end();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) != QColor(Qt::red)) {
                    area |= QRect(x, y, 1, 1);
                    isOpen = isOpen || image.pixelColor(x, y) == Colours.background;
                }
        area.translate(-Node.toPoint());
    }

    /// Compares the area relative to the node, ignoring the width of the lines.
    bool covers(const QRectF& wanted) const
    {
        const QRectF drawn = area.isEmpty() ? QRectF() : QRectF(area);
        return qAbs(drawn.left() - wanted.left()) < 2.5 && qAbs(drawn.top() - wanted.top()) < 2.5 &&
               qAbs(drawn.right() - wanted.right()) < 2.5 &&
               qAbs(drawn.bottom() - wanted.bottom()) < 2.5;
    }

    QByteArray told() const
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(area.x())
            .arg(area.y())
            .arg(area.width())
            .arg(area.height())
            .toLatin1();
    }

    QRect area;
    bool isOpen = false;
};
} // namespace

/// Tests the areas that symbols cover, in pixels relative to the node.
class TestSymbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void supports_data()
    {
        const Columns<Position, int, QRectF, bool> row("eye", "fixed", "area", "isOpen");
        const Position front{0, -1, 0};
        row("free", front, 0, {}, false);
        row("along x", front, 1, {-20, -10, 20, 20}, true);
        row("along x, oblique", {1, -1, 0}, 1, {-20, -10, 20, 20}, true);
        row("along the view", front, 2, {-7, -7, 14, 14}, true);
        row("along z", front, 4, {-10, 0, 20, 20}, true);
        row("along x and z", front, 5, {-20, -10, 30, 30}, true);
        row("pinned", front, 7, {-10, 0, 20, 20}, false);
        row("pinned, oblique", {0, -1, 1}, 7, {-10, 0, 20, 20}, false);
        row("pinned, from above", {0, 0, 1}, 7, {-10, 0, 20, 20}, false);
        row("pinned, from below", {0, -1, -1}, 7, {-10, 0, 20, 20}, false);
        row("clamped", front, 63, {-10, 0, 20, 10}, false);
        row("one rotation", front, 32, {-10, 0, 20, 10}, false);
        row("rotation and x", front, 9, {-20, -10, 30, 20}, false);
    }

    void supports()
    {
        QFETCH(const Position, eye);
        QFETCH(const int, fixed);
        QFETCH(const QRectF, area);
        const Drawing drawing([&](QPainter& painter) {
            drawSupport(painter, axesOf(lookingFrom(eye)), Node, fixed, Size, Colours);
        });
        QVERIFY2(drawing.covers(area), drawing.told().constData());
        QTEST(drawing.isOpen, "isOpen");
    }

    void springs_data()
    {
        const Columns<QPointF, bool, QRectF> row("way", "hasGround", "area");
        row("long", {0, 40}, false, {-4, 0, 8, 40});
        row("long, to the ground", {0, 40}, true, {-6, 0, 12, 40});
        row("level", {-40, 0}, false, {-40, -4, 40, 8});
        row("short", {0, 4.5}, true, {-1, 0, 2, 4.5});
        row("point", {0.3, 0.3}, true, {});
    }

    void springs()
    {
        QFETCH(const QPointF, way);
        QFETCH(const bool, hasGround);
        QFETCH(const QRectF, area);
        const Drawing drawing(
            [&](QPainter& painter) { drawSpring(painter, Node, Node + way, hasGround); });
        QVERIFY2(drawing.covers(area), drawing.told().constData());
    }

    /// The name of an axis along the viewing direction is drawn to the lower left of the origin.
    void triad()
    {
        const Drawing drawing([](QPainter& painter) {
            QFont font = painter.font();
            font.setPixelSize(6);
            painter.setFont(font);
            drawTriad(painter, axesOf(lookingFrom({0, -1, 0})), Node, 30.0, {Qt::black, Qt::red});
        });
        QVERIFY2(drawing.covers({-11, -40, 51, 51}), drawing.told().constData());
    }
};

PLIB_WIDGET_TEST_MAIN(TestSymbols)
#include "tst_symbols.moc"
