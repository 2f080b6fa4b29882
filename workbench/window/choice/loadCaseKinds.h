#pragma once

#include <QString>

namespace workbench {

/// Returns the kind of a load case, in the language of the desktop. The project does not contain
/// kinds of load cases, so the kind is guessed from words in the title, in either language.
QString loadCaseKind(const QString& title);

} // namespace workbench
