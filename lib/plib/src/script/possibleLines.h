#pragma once

#include "catalogue/GraphicalOutputRecord.h"
#include "script/Keywords.h"

#include <QStringList>

#include <vector>

namespace plib {

/// Returns an example of each line that a script can contain: every plot of the catalogue with and
/// without a second load case, every view, and every page setup and fill setting. The lines contain
/// all keywords of one language, so hosts can check and highlight scripts without their own list of
/// keywords. The header and the end of the program block come from the platform and are not
/// included. Plots of split pages are left out, because these pages have no script.
QStringList possibleLines(const std::vector<GraphicalOutputRecord>& catalogue, Keywords keywords);

} // namespace plib
