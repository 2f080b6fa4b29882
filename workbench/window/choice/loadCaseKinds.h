#pragma once

#include <QString>

namespace workbench {

/// Returns the kind of a load case, in the language of the desktop. The project does not contain
/// the kinds of load cases, so the kind is guessed from German or English words in the title.
QString loadCaseKind(const QString& title);

} // namespace workbench
