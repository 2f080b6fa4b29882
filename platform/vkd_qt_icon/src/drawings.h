#pragma once

#include <QLatin1String>

class QPainter;
class QPalette;

namespace vkd {
namespace qt {

/// Draws an icon into the square from (0, 0) to (16, 16).
using Drawing = void (*)(QPainter& painter, const QPalette& palette);

/// Returns the drawing with this name, or null.
Drawing findDrawing(const QString& name);

} // namespace qt
} // namespace vkd
