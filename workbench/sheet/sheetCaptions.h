#pragma once

#include "SheetPlan.h"

#include <QHash>

namespace workbench {

/// A plot that is checked on the output page, or the row of a load case below it.
struct PlotCaption
{
    QString plot;
    int loadCase = 0; ///< of a row; 0 for a plot that stands alone
    QString loadCaseTitle;
};

/// Gives the pictures of a plan the captions under which the user chose them.
///
/// The script says what to draw by keywords alone, but its pictures come in the order of the tree,
/// one for each plot or row that is checked there. Where the two lists agree in length and in each
/// row's load case, the captions go to the pictures, and a plot that stands alone loses the load
/// case that the script merely set before. Otherwise no picture changes, and false comes back: the
/// reader then sees the keywords rather than a caption that may be that of another picture.
bool setCaptions(SheetPlan* plan, const QVector<PlotCaption>& captions);

/// Titles for load cases of pictures that have none as yet.
void setLoadCaseTitles(SheetPlan* plan, const QHash<int, QString>& titles);

} // namespace workbench
