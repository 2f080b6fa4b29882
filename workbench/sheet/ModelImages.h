#pragma once

#include "sheet/SheetPlan.h"

#include <AnimatorPicture.h>
#include <ZobHandle.h>

#include <QCache>
#include <QImage>

class QPainter;

namespace workbench {

/// Pictures of a project's model for the frames of its sheets. All frames with the same view share
/// one picture, which is drawn once and cached. A PDF file of many pages contains it only once,
/// which a vector drawing would not achieve.
class ModelImages
{
public:
    /// Loads the model of the project, or shares it with a view that shows it.
    explicit ModelImages(ZobHandle project);

    /// Returns whether the project has no model.
    bool isEmpty() const { return m_model.isEmpty(); }
    /// Returns the N of the scale 1:N for a view in a frame of this size (mm). `wanted` is the
    /// scale of the plan.
    double scale(const PictureView& view, const QSizeF& frame, double wanted);
    /// Returns whether the model at 1:N is larger than the frame.
    bool isCut(const PictureView& view, const QSizeF& frame, double scale);
    /// Draws the model at 1:N into the frame, which is given in the painter's units.
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
