#pragma once

#include "sheet/SheetPlan.h"

#include <AnimatorPicture.h>
#include <ZobHandle.h>

#include <QCache>
#include <QImage>

class QPainter;

namespace workbench {

/// Images of a project's model for the frames of its sheets. All frames with the same view share
/// one cached image. A PDF file with many pages contains each image only once; a vector drawing
/// would be repeated on every page.
class ModelImages
{
public:
    /// Loads the model of the project, or shares the model with a view that already shows it.
    explicit ModelImages(ZobHandle project);

    /// Returns whether the project has no model.
    bool isEmpty() const { return m_model.isEmpty(); }
    /// Returns N for the scale 1:N of a view in a frame of this size (mm). `wanted` is the scale of
    /// the plan.
    double scale(const PictureView& view, const QSizeF& frame, double wanted);
    /// Returns whether the model at scale 1:N is larger than the frame.
    bool isCut(const PictureView& view, const QSizeF& frame, double scale);
    /// Draws the model at scale 1:N into the frame, whose rectangle is in the painter's units.
    void paint(QPainter& painter, const QRectF& frame, double unitsPerMm, const PictureView& view,
               double scale);

private:
    vkd::dbo::Camera camera(const PictureView& view);
    vkd::dbo::Camera flatCamera();
    double fittingScale(const PictureView& view, const QSizeF& frame);
    QImage newImage(const QSize& pixels, const QSizeF& frame, const PictureView& view,
                    double scale);

    AnimatorPicture m_model;
    QCache<QString, QImage> m_images; // costs are in kilobytes
};

} // namespace workbench
