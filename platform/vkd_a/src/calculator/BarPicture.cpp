#include "calculator/BarPicture.h"

#include "calculator/areaFields.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr double MillimetresPerMetre = 1000.0;
constexpr double Cover = 15.0;           // mm, for the picture only
constexpr double BetweenLayers = 20.0;   // mm, clear, for the picture only
constexpr double HeightOfPlate = 130.0;  // mm
constexpr double SmallestRadius = 1.0;   // px
constexpr int Margin = 8;                // px
constexpr int MostPlaces = 500;          // more places would merge into a black strip
const QColor TooTight(0xd0, 0x3a, 0x2a); // visible on light and dark plates

/// Paints the bars of a layer. `depth` is the distance in mm of their axes from the upper edge.
void paintBars(QPainter* painter, const QRectF& plate, const VkdBarLayout& bars, double depth)
{
    const double scale = plate.width() / MillimetresPerMetre;
    const double step = bars.spacing * MillimetresPerMetre * scale;
    const double radius = std::max(bars.diameter / 2.0 * scale, SmallestRadius);
    const double y = plate.top() + depth * scale;
    double x = plate.left() + step / 2.0;
    for (int place = 0; place < MostPlaces && x < plate.right(); ++place, x += step)
        for (int bar = 0; bar < bars.barsPerPlace; ++bar) {
            const double offset = (2 * bar - bars.barsPerPlace + 1) * radius;
            painter->drawEllipse(QPointF(x + offset, y), radius, radius);
        }
}
} // namespace

BarPicture::BarPicture(QWidget* parent, const char* name)
    : QWidget(parent)
{
    setObjectName(QLatin1String(name));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setToolTip(
        tr("A metre of the plate with its bars. Diameters and spacings are to scale; covers and "
           "distances between layers are not."));
    setAccessibleName(tr("Picture of the bars"));
}

void BarPicture::setLayers(const QVector<Layer>& layers)
{
    m_layers = layers;
    update();
}

QSize BarPicture::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 70, fontMetrics().height() * 9 / 2};
}

void BarPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF plate = QRectF(rect()).adjusted(Margin, 1, -Margin, -1);
    plate.setHeight(std::min(plate.height(), plate.width() * HeightOfPlate / MillimetresPerMetre));
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::AlternateBase));
    painter.drawRect(plate);
    painter.setPen(Qt::NoPen);
    double depth = Cover;
    for (const Layer& layer : qAsConst(m_layers)) {
        depth += layer.bars.diameter / 2.0;
        painter.setBrush(layer.isTooTight ? TooTight : palette().color(QPalette::Text));
        paintBars(&painter, plate, layer.bars, depth);
        depth += layer.bars.diameter / 2.0 + BetweenLayers;
    }
}
