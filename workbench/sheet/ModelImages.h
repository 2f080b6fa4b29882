#pragma once

#include "SheetPlan.h"

#include <AnimatorPicture.h>

#include <QCache>
#include <QImage>

class QPainter;

namespace workbench {

/// Pictures of a project's model for the frames of its sheets. All frames of a view are alike, so
/// their picture is drawn once and kept for as long as there is room; a file of many pages holds it
/// once, too, which no vector drawing would be.
class ModelImages
{
public:
    /// Reads the model of the project at this database index, unless a view shows it already.
    explicit ModelImages(int index);

    /// Whether there is a model to draw.
    bool isEmpty() const { return m_model.isEmpty(); }
    /// The N of the scale 1:N that a view gets in a frame of this size (mm). `wanted` is that of a
    /// plan.
    double scale(const PictureView& view, const QSizeF& frame, double wanted);
    /// Whether the model at 1:N reaches out of the frame.
    bool isCut(const PictureView& view, const QSizeF& frame, double scale);
    /// Draws the model at 1:N into the frame, given in the painter's units.
    void paint(QPainter& painter, const QRectF& frame, double unitsPerMm, const PictureView& view,
               double scale);

private:
    vkd::dbo::Camera camera(const PictureView& view);
    vkd::dbo::Camera flatCamera();
    double fittingScale(const PictureView& view, const QSizeF& frame);
    QImage newImage(const QSize& pixels, const QSizeF& frame, const PictureView& view,
                    double scale);

    AnimatorPicture m_model;
    QCache<QString, QImage> m_images; // the cost is in kilobytes
};

} // namespace workbench
