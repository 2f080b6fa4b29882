#pragma once

#include <WindowServices.h>

namespace workbench {

/// The captions of all plots of the installed catalogue in a language, 0 German or 1 English; empty
/// if it cannot be read. Apart from the catalogue of the process, which stays as it is.
QVector<PlotTitles> plotTitles(int language);

} // namespace workbench
