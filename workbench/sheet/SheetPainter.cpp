#include "sheet/SheetPainter.h"

#include "sheet/ModelImages.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>
#include <iterator>

namespace workbench {

namespace {
// Font sizes are integers, so drawing uses units of 0.01 mm.
constexpr double Mm = 100.0;
constexpr double Margin = 10.0 * Mm; // required by printers
constexpr double Gap = 4.0 * Mm;     // between frames
constexpr double Padding = 1.5 * Mm;
constexpr double FooterHeight = 6.0 * Mm;
constexpr double FooterText = 2.0 * Mm;
constexpr double ThinLine = 0.18 * Mm;
constexpr double BorderLine = 0.5 * Mm;
constexpr double CapitalShare = 0.72; // height of capitals, in units of the font size
constexpr double LineShare = 1.5;     // line height, in units of the font size
const QColor Ink(Qt::black);
const QColor PaleInk(90, 90, 90);
const QColor Shadow(222, 222, 222);

QFont fontOf(const QPainter& painter, double capitals)
{
    QFont font = painter.font();
    font.setPixelSize(qMax(1, qRound(capitals / CapitalShare)));
    font.setBold(false);
    font.setHintingPreference(QFont::PreferNoHinting); // keeps text widths equal at every zoom
    return font;
}

double lineHeight(const QFont& font)
{
    return LineShare * font.pixelSize();
}

/// Draws the text in one line, elided if it is too long. Returns its width.
double drawText(QPainter& painter, const QRectF& line, int alignment, const QString& text)
{
    const QFontMetricsF metrics(painter.font());
    const QString shown = metrics.elidedText(text, Qt::ElideRight, qMax(0.0, line.width()));
    painter.drawText(line, alignment | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    return metrics.horizontalAdvance(shown);
}

/// Draws a sharp outline on whole device pixels, at least one pixel wide.
void drawOutline(QPainter& painter, const QRectF& rect, double width)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRectF dots = toDevice.mapRect(rect);
    const double dot = 1.0 / qMax(1e-6, toDevice.m11());
    const double shift = qRound(qMax(width / dot, 1.0)) % 2 == 0 ? 0.0 : 0.5;
    const QRectF whole(
        QPointF(std::floor(dots.left()) + shift, std::floor(dots.top()) + shift),
        QPointF(std::floor(dots.right()) + shift, std::floor(dots.bottom()) + shift));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Ink, qMax(width, dot), Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(toDevice.inverted().mapRect(whole));
}

QRectF frameRect(const QRectF& area, const SheetPlan& plan, int place)
{
    const QSizeF size((area.width() - (plan.columns - 1) * Gap) / plan.columns,
                      (area.height() - (plan.rows - 1) * Gap) / plan.rows);
    const int row = place / plan.columns;
    const int column = place % plan.columns;
    return {area.left() + column * (size.width() + Gap), area.top() + row * (size.height() + Gap),
            size.width(), size.height()};
}

/// Returns whether the picture is a list of materials or sections, which does not show the model.
bool isLegend(const SheetPicture& picture)
{
    return picture.command.endsWith(QLatin1String(" LEGE"));
}

/// Sketches a list whose entries are known only to the graphics program: each line has a sample and
/// two words in the painter's font.
void sketchLegend(QPainter& painter, const QRectF& frame)
{
    const double line = lineHeight(painter.font());
    const double unit = qMin(line, qMin(frame.height() / 11.0, frame.width() / 24.0));
    const double sample = 0.7 * unit;
    const double pitch = 1.8 * unit;
    const double words[][2] = {{7.0, 9.0}, {9.0, 6.0}, {6.0, 8.0}, {8.0, 10.0}};
    const double left = frame.center().x() - 10.0 * unit;
    const double top = frame.center().y() - pitch;
    painter.setPen(PaleInk);
    painter.drawText(QRectF(frame.left(), top - 0.8 * unit - line, frame.width(), line),
                     Qt::AlignCenter, SheetPainter::tr("Legend"));
    painter.setPen(Qt::NoPen);
    for (int row = 0; row < int(std::size(words)); ++row) {
        const double y = top + 0.4 * pitch + row * pitch;
        painter.setBrush(Shadow.darker(100 + 15 * row));
        painter.drawRect(QRectF(left, y, 1.6 * sample, sample));
        painter.setBrush(Shadow);
        double x = left + 2.5 * unit;
        for (double word : words[row]) {
            painter.drawRect(QRectF(x, y + 0.25 * sample, word * unit, 0.5 * sample));
            x += (word + 0.6) * unit;
        }
    }
}

QString viewText(const PictureView& view)
{
    switch (view.kind) {
    case PictureView::Unset: break;
    case PictureView::Spatial: return SheetPainter::tr("3D Standard");
    case PictureView::Flat: return SheetPainter::tr("Plane view");
    case PictureView::PlaneXY: return SheetPainter::tr("X/Y plane");
    case PictureView::PlaneXZ: return SheetPainter::tr("X/Z plane");
    case PictureView::PlaneYZ: return SheetPainter::tr("Y/Z plane");
    case PictureView::Free: return SheetPainter::tr("User defined");
    }
    return SheetPainter::tr("View not set");
}

/// Returns a scale as text. A scale to fit is rounded to three digits.
QString scaleText(double scale, double wanted, bool isCut)
{
    const double step = std::pow(10.0, std::floor(std::log10(qMax(scale, 1.0))) - 2);
    const double shown =
        wanted == SheetPlan::ScaleToFit && step > 1.0 ? std::ceil(scale / step) * step : scale;
    const QString ratio = SheetPainter::tr("1:%1").arg(qMax(1.0, std::ceil(shown)), 0, 'f', 0);
    if (isCut)
        return SheetPainter::tr("%1, cut off").arg(ratio);
    return wanted == SheetPlan::ScaleToFit ? SheetPainter::tr("%1, to fit").arg(ratio) : ratio;
}
} // namespace

SheetPainter::SheetPainter(ModelImages* models, const QString& project)
    : m_models(models)
    , m_project(project)
{
}

void SheetPainter::paint(QPainter& painter, const QRectF& sheet, const SheetPlan& plan, int page)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    painter.translate(sheet.topLeft());
    painter.scale(sheet.width() / (plan.size.width() * Mm),
                  sheet.height() / (plan.size.height() * Mm));
    const QRectF paper(QPointF(), plan.size * Mm);
    painter.fillRect(paper, Qt::white);
    QRectF area = paper.adjusted(Margin, Margin, -Margin, -Margin);
    if (plan.hasBorder) {
        drawOutline(painter, area, BorderLine);
        area.adjust(Gap / 2, Gap / 2, -Gap / 2, 0.0);
    }
    paintFooter(painter, {area.left(), area.bottom() - FooterHeight, area.width(), FooterHeight},
                plan, page);
    area.setBottom(area.bottom() - FooterHeight - Padding);
    const int first = plan.firstPicture(page);
    for (int picture = first; picture < plan.endPicture(page); ++picture)
        paintFrame(painter, frameRect(area, plan, picture - first), plan, picture);
    painter.restore();
}

QString SheetPainter::captionOf(const SheetPicture& picture)
{
    return picture.caption.isEmpty() ? picture.command : picture.caption;
}

QString SheetPainter::loadCaseOf(const SheetPicture& picture)
{
    if (picture.loadCase == 0)
        return QString();
    const QString numbers =
        picture.secondLoadCase == 0
            ? tr("Load case %1").arg(picture.loadCase)
            : tr("Load cases %1 and %2").arg(picture.loadCase).arg(picture.secondLoadCase);
    return picture.loadCaseTitle.isEmpty() ? numbers
                                           : tr("%1: %2").arg(numbers, picture.loadCaseTitle);
}

void SheetPainter::paintFrame(QPainter& painter, const QRectF& frame, const SheetPlan& plan,
                              int picture)
{
    // Limits the text size, so that the image takes up most of the frame.
    const QFont font = fontOf(painter, qMin(plan.textHeight * Mm, frame.height() / 14.0));
    const double line = lineHeight(font);
    const QRectF texts(frame.left() + Padding, frame.bottom() - 2.0 * line,
                       frame.width() - 2.0 * Padding, line);
    const QRectF view = frame.adjusted(0.0, 0.0, 0.0, -2.0 * line);
    painter.setFont(font);
    const SheetPicture& shown = plan.pictures[picture];
    const QString look = paintModel(painter, view, plan, shown);
    drawOutline(painter, view, ThinLine);
    drawOutline(painter, frame, ThinLine);
    const double taken = drawText(painter, texts.translated(0.0, line), Qt::AlignRight, look);
    drawText(painter, texts.adjusted(0.0, line, -taken - 2.0 * Padding, line), Qt::AlignLeft,
             loadCaseOf(shown));
    QFont bold = font;
    bold.setBold(true);
    painter.setFont(bold);
    drawText(painter, texts, Qt::AlignLeft, tr("%1  %2").arg(picture + 1).arg(captionOf(shown)));
}

/// Draws the model and returns the description of its view.
QString SheetPainter::paintModel(QPainter& painter, const QRectF& frame, const SheetPlan& plan,
                                 const SheetPicture& picture)
{
    const PictureView& view = plan.views[picture.view];
    if (isLegend(picture)) {
        sketchLegend(painter, frame);
        return QString();
    }
    if (m_models->isEmpty()) {
        painter.setPen(PaleInk);
        painter.drawText(frame, Qt::AlignCenter | Qt::TextWordWrap,
                         tr("The project contains no structural model."));
        return viewText(view);
    }
    const QSizeF size = frame.size() / Mm;
    const double scale = m_models->scale(view, size, plan.scale);
    m_models->paint(painter, frame, Mm, view, scale);
    const bool isCut = m_models->isCut(view, size, scale);
    return tr("%1, %2").arg(viewText(view), scaleText(scale, plan.scale, isCut));
}

void SheetPainter::paintFooter(QPainter& painter, const QRectF& strip, const SheetPlan& plan,
                               int page)
{
    painter.setFont(fontOf(painter, FooterText));
    painter.setPen(Ink);
    const double number = drawText(painter, strip, Qt::AlignRight,
                                   tr("Page %1 of %2").arg(page + 1).arg(plan.pageCount()));
    const QRectF name = strip.adjusted(0.0, 0.0, -0.7 * strip.width(), 0.0);
    const double used = drawText(painter, name, Qt::AlignLeft, m_project);
    painter.setPen(PaleInk);
    drawText(painter, strip.adjusted(used + Gap, 0.0, -number - Gap, 0.0), Qt::AlignHCenter,
             tr("Preview without results, which the graphics program draws"));
}

} // namespace workbench
