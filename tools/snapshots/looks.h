#pragma once

class QPalette;

namespace workbench {

/// Returns the colours of a dark desktop, independent of the platform's theme.
QPalette darkPalette();

} // namespace workbench
