#pragma once

#include "sheet/SheetPlan.h"

#include <QCoreApplication>

class QPainter;
class QRectF;

namespace workbench {

class ModelImages;

/// Draws the pages of a plan: a white sheet with its frames, the project name and the page number
/// below the frames. Each frame shows the model in the picture's view, with caption, load case,
/// view and scale. A note on each page states that the pictures contain no results, because only
/// the graphics program can draw results.
class SheetPainter
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SheetPainter)

public:
    /// `models` is not owned and must outlive the painter. Each page shows `project` below the
    /// frames.
    SheetPainter(ModelImages* models, const QString& project);

    /// Draws a page, counted from 0, into a rectangle with the proportions of the sheet.
    void paint(QPainter& painter, const QRectF& sheet, const SheetPlan& plan, int page);
    /// These functions return the plot and the load case of a picture as text.
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
