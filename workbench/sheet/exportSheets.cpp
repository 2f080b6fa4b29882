#include "sheet/exportSheets.h"

#include "sheet/SheetPainter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace workbench {

namespace {
constexpr int DotsPerInch = 300;
constexpr int SliceMs = 40; // interval for reporting progress

void setUp(QPdfWriter& writer, const SheetPlan& plan, const QString& path)
{
    const bool lies = plan.size.width() > plan.size.height();
    const QSizeF standing = lies ? plan.size.transposed() : plan.size;
    writer.setPageLayout({QPageSize(standing, QPageSize::Millimeter),
                          lies ? QPageLayout::Landscape : QPageLayout::Portrait,
                          QMarginsF(0.0, 0.0, 0.0, 0.0)});
    writer.setResolution(DotsPerInch);
    writer.setTitle(QFileInfo(path).completeBaseName());
    writer.setCreator(QCoreApplication::applicationName());
}

SheetExport writePages(const SheetPlan& plan, SheetPainter& sheets, QPdfWriter& writer,
                       const SheetProgress& goOn)
{
    QPainter painter(&writer);
    if (!painter.isActive())
        return SheetExport::Failed;
    const QRectF sheet(0.0, 0.0, plan.size.width() / 25.4 * DotsPerInch,
                       plan.size.height() / 25.4 * DotsPerInch);
    QElapsedTimer slice;
    slice.start();
    for (int page = 0; page < plan.pageCount(); ++page) {
        if (slice.elapsed() >= SliceMs) {
            if (!goOn(page))
                return SheetExport::Cancelled;
            slice.restart();
        }
        if (page > 0 && !writer.newPage())
            return SheetExport::Failed;
        sheets.paint(painter, sheet, plan, page);
    }
    return painter.end() ? SheetExport::Done : SheetExport::Failed;
}
} // namespace

SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         const SheetProgress& goOn, QString* trouble)
{
    QSaveFile file(path);
    if (plan.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        *trouble = file.errorString();
        return SheetExport::Failed;
    }
    SheetExport result = SheetExport::Failed;
    {
        QPdfWriter writer(&file);
        setUp(writer, plan, path);
        result = writePages(plan, painter, writer, goOn);
    }
    if (result == SheetExport::Done && file.commit())
        return SheetExport::Done;
    *trouble = file.errorString();
    file.cancelWriting();
    return result == SheetExport::Cancelled ? result : SheetExport::Failed;
}

} // namespace workbench
