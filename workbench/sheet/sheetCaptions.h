#pragma once

#include "sheet/SheetPlan.h"

#include <QHash>

namespace workbench {

/// A checked plot of the output page, or a load case row below it.
struct PlotCaption
{
    QString plot;
    int loadCase = 0; ///< load case of a row; 0 for a plot without rows
};

/// Sets the captions of a plan's pictures to the captions of the output page.
///
/// The script identifies plots only by keywords, but its pictures are in the order of the tree, one
/// for each checked plot or row. If both lists have the same length and the same load cases, the
/// captions are assigned to the pictures, and the load case that an earlier statement set is
/// removed from plots without rows. Otherwise the pictures are not changed: keywords are shown
/// instead of captions that may belong to other pictures.
void setCaptions(SheetPlan* plan, const QVector<PlotCaption>& captions);

/// Sets the load case titles of the pictures from titles keyed by load case number.
void setLoadCaseTitles(SheetPlan* plan, const QHash<int, QString>& titles);

} // namespace workbench
