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
/// The script identifies plots by keywords only, but its pictures have the order of the tree, one
/// for each checked plot or row. If both lists have the same length and the same load case in each
/// row, the pictures get the captions, and plots without rows lose the load case that an earlier
/// statement set. Otherwise changes nothing: the reader then sees keywords instead of captions that
/// may belong to other pictures.
void setCaptions(SheetPlan* plan, const QVector<PlotCaption>& captions);

/// Sets the load case titles of the pictures from the titles by number.
void setLoadCaseTitles(SheetPlan* plan, const QHash<int, QString>& titles);

} // namespace workbench
