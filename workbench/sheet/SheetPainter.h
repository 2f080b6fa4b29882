#pragma once

#include "SheetPlan.h"

#include <QCoreApplication>

class QPainter;
class QRectF;

namespace workbench {

class ModelImages;

/// Draws the pages of a plan: the sheet in white with its frames, in each frame the model as the
/// picture looks at it with caption, load case, view and scale, and below them the project and the
/// number of the page. Results are the graphics program's to draw; each page says so.
class SheetPainter
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SheetPainter)

public:
    /// `models` is not owned and outlives the painter. `project` is shown on each page.
    SheetPainter(ModelImages* models, const QString& project);

    /// Draws a page, counted from 0, into a rectangle that has the sides of the sheet.
    void paint(QPainter& painter, const QRectF& sheet, const SheetPlan& plan, int page);
    /// What a picture shows, in words.
    static QString captionOf(const SheetPicture& picture);
    static QString loadCaseOf(const SheetPicture& picture);

private:
    void paintFrame(QPainter& painter, const QRectF& frame, const SheetPlan& plan, int picture);
    QString paintModel(QPainter& painter, const QRectF& frame, const SheetPlan& plan,
                       const SheetPicture& picture);
    void paintFooter(QPainter& painter, const QRectF& strip, const SheetPlan& plan, int page);

    ModelImages* m_models;
    QString m_project;
};

} // namespace workbench
