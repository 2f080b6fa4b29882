#pragma once

class QPalette;

namespace workbench {

/// Returns the palette of a dark desktop, independent of the platform theme.
QPalette darkPalette();

} // namespace workbench
