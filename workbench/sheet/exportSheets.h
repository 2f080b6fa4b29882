#pragma once

#include "sheet/SheetPlan.h"

class QWidget;

namespace workbench {

class SheetPainter;

enum class SheetExport { Done, Cancelled, Failed };

/// Writes the pages of a plan to a PDF file, one sheet per page. If this takes longer than half a
/// second, a progress dialog with a Cancel button is shown over the window of `parent`. The file is
/// either written completely or not changed. After a failure, `trouble` contains the reason.
SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         QWidget* parent, QString* trouble);

} // namespace workbench
