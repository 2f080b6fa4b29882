#pragma once

#include "sheet/SheetPlan.h"

#include <functional>

namespace workbench {

class SheetPainter;

enum class SheetExport { Done, Cancelled, Failed };

/// Reports the number of pages that have been drawn. If it returns false, the export is cancelled.
using SheetProgress = std::function<bool(int pages)>;

/// Writes the pages of a plan to a PDF file, one sheet per page. The file is either written
/// completely or not changed. `goOn` is called at intervals. After a failure, `trouble` contains
/// the reason.
SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         const SheetProgress& goOn, QString* trouble);

} // namespace workbench
