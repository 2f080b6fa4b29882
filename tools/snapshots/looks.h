#pragma once

class QPalette;

namespace workbench {

/// A dark desktop, whatever the platform has.
QPalette darkPalette();

} // namespace workbench
