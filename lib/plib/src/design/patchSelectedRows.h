#pragma once

#include "exchange/RowPatch.h"

#include <QStringList>

#include <vector>

class DesignParameter;

namespace plib {

/// Applies parameters to the selected rows of the page, as patchRows() does, in a single undo step
/// with this name (see stepText()). Returns the errors. If there are any, nothing is changed.
QStringList patchSelectedRows(DesignParameter* page, const std::vector<RowPatch>& patches,
                              const QStringList& stepName);

} // namespace plib
