#pragma once

class QPalette;

namespace workbench {

/// The colours of a dark desktop, independent of the platform's theme.
QPalette darkPalette();

} // namespace workbench
