#pragma once

#include "SheetPlan.h"

class QWidget;

namespace workbench {

class SheetPainter;

enum class SheetExport { Done, Cancelled, Failed };

/// Writes all pages of a plan as a PDF file, a sheet to a page. What takes longer than half a
/// second shows its progress above the window of `parent` and can be cancelled. The file is there
/// in the end with all pages or stays as it was before; where it failed, `trouble` says why.
SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         QWidget* parent, QString* trouble);

} // namespace workbench
