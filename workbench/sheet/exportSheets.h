#pragma once

#include "sheet/SheetPlan.h"

class QWidget;

namespace workbench {

class SheetPainter;

enum class SheetExport { Done, Cancelled, Failed };

/// Writes the pages of a plan to a PDF file, one sheet per page. If this takes longer than half a
/// second, a progress dialog over the window of `parent` shows the progress and offers Cancel. The
/// file is written completely or not changed at all; after a failure, `trouble` is the reason.
SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         QWidget* parent, QString* trouble);

} // namespace workbench
