#pragma once

#include "sheet/SheetPlan.h"

#include <QCoreApplication>

class QPainter;
class QRectF;

namespace workbench {

class ModelImages;

/// Draws the pages of a plan: a white sheet with its frames, and below them the project and the
/// page number. Each frame shows the model in the view of the picture with caption, load case, view
/// and scale. Only the graphics program draws results; each page says so.
class SheetPainter
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SheetPainter)

public:
    /// `models` is not owned and must outlive the painter. Each page shows `project`.
    SheetPainter(ModelImages* models, const QString& project);

    /// Draws a page, counted from 0, into a rectangle with the proportions of the sheet.
    void paint(QPainter& painter, const QRectF& sheet, const SheetPlan& plan, int page);
    /// Return the content of a picture in words.
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
