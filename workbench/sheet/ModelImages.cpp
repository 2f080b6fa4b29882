#include "sheet/ModelImages.h"

#include <QPainter>

#include <cmath>

namespace workbench {

namespace {
constexpr int MostKilobytes = 64 * 1024;
constexpr int MostPixels = 4000; // per side
constexpr double PixelsPerMm = 96.0 / 25.4;

/// Returns the number of pixels on paper per metre of the model at scale 1:N.
double pixelsPerMetre(double scale)
{
    return 1000.0 / scale * PixelsPerMm;
}

/// Returns N for the largest common scale 1:N at which the model fits.
double usualScale(double least)
{
    for (double n : {1, 2, 5, 10, 20, 25, 50, 100, 200, 500, 1000})
        if (n >= least)
            return n;
    return std::ceil(least / 1000.0) * 1000.0;
}

vkd::dbo::Camera lookingFrom(double x, double y, double z)
{
    vkd::dbo::Camera camera;
    camera.eye[0] = x;
    camera.eye[1] = y;
    camera.eye[2] = z;
    return camera;
}

/// Returns the frame aligned to whole device pixels, so that the image is sharp. The size does not
/// depend on the position on the sheet, so that frames of the same size share an image.
QRectF dotsOf(const QPainter& painter, const QRectF& frame)
{
    const QRectF exact = painter.deviceTransform().mapRect(frame);
    return {exact.topLeft().toPoint(), exact.size().toSize()};
}

QSize pixelsOf(const QSizeF& dots)
{
    const double larger = qMax(qMax(dots.width(), dots.height()), 1.0);
    const QSizeF held = dots * qMin(1.0, MostPixels / larger);
    return {qMax(1, qRound(held.width())), qMax(1, qRound(held.height()))};
}

QString keyOf(const QSize& pixels, const QSizeF& frame, const PictureView& view, double scale)
{
    QString key = QString::number(int(view.kind));
    for (double number : {double(pixels.width()), double(pixels.height()), frame.width(), scale,
                          view.eye[0], view.eye[1], view.eye[2], view.roll})
        key += QLatin1Char(' ') + QString::number(number, 'g', 12);
    return key;
}
} // namespace

ModelImages::ModelImages(ZobHandle project)
    : m_model(project)
    , m_images(MostKilobytes)
{
}

double ModelImages::scale(const PictureView& view, const QSizeF& frame, double wanted)
{
    if (wanted > 0.0)
        return wanted;
    const double fitting = fittingScale(view, frame);
    return wanted == SheetPlan::EngineeringScale ? usualScale(fitting) : fitting;
}

bool ModelImages::isCut(const PictureView& view, const QSizeF& frame, double scale)
{
    const QSizeF onPaper = m_model.sizeSeen(camera(view)) * (1000.0 / scale);
    return onPaper.width() > frame.width() || onPaper.height() > frame.height();
}

void ModelImages::paint(QPainter& painter, const QRectF& frame, double unitsPerMm,
                        const PictureView& view, double scale)
{
    const QRectF dots = dotsOf(painter, frame);
    const QSize pixels = pixelsOf(dots.size());
    const QSizeF size = frame.size() / unitsPerMm;
    const QString key = keyOf(pixels, size, view, scale);
    QImage image;
    if (const QImage* known = m_images.object(key)) {
        image = *known;
    } else {
        image = newImage(pixels, size, view, scale);
        m_images.insert(key, new QImage(image), int(image.sizeInBytes() / 1024) + 1);
    }
    painter.drawImage(painter.deviceTransform().inverted().mapRect(dots), image);
}

vkd::dbo::Camera ModelImages::camera(const PictureView& view)
{
    switch (view.kind) {
    case PictureView::Unset:
    case PictureView::Spatial: break;
    case PictureView::Flat: return flatCamera();
    case PictureView::PlaneXY: return lookingFrom(0, 0, 1);
    case PictureView::PlaneXZ: return lookingFrom(0, -1, 0);
    case PictureView::PlaneYZ: return lookingFrom(1, 0, 0);
    case PictureView::Free: {
        vkd::dbo::Camera free = lookingFrom(view.eye[0], view.eye[1], view.eye[2]);
        free.roll = view.roll;
        return free;
    }
    }
    return {};
}

/// Returns a camera perpendicular to the plane of a flat model, or a camera from above if the model
/// is not flat.
vkd::dbo::Camera ModelImages::flatCamera()
{
    constexpr double Thin = 1e-6;
    const QSizeF fromAbove = m_model.sizeSeen(lookingFrom(0, 0, 1));
    if (fromAbove.height() <= Thin * fromAbove.width())
        return lookingFrom(0, -1, 0);
    return fromAbove.width() <= Thin * fromAbove.height() ? lookingFrom(1, 0, 0)
                                                          : lookingFrom(0, 0, 1);
}

double ModelImages::fittingScale(const PictureView& view, const QSizeF& frame)
{
    return pixelsPerMetre(m_model.fittingScale(camera(view), frame * PixelsPerMm));
}

QImage ModelImages::newImage(const QSize& pixels, const QSizeF& frame, const PictureView& view,
                             double scale)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QSizeF size = frame * PixelsPerMm;
    painter.scale(pixels.width() / size.width(), pixels.height() / size.height());
    m_model.paint(painter, size, camera(view), pixelsPerMetre(scale));
    return image;
}

} // namespace workbench
