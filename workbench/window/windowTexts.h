#pragma once

namespace workbench {

/// Installs the German texts of the window, for this call and all later changes of the language. A
/// static library has no load of its own at which this could happen.
void installWindowTexts();

} // namespace workbench
