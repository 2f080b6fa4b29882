#include "sheet/exportSheets.h"

#include "sheet/SheetPainter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QProgressDialog>
#include <QSaveFile>

namespace workbench {

namespace {
constexpr int DotsPerInch = 300;
constexpr int ShowsAfterMs = 500;
constexpr int SliceMs = 40; // interval for processing events

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

/// Returns false if the user has cancelled or a page could not be started.
bool writePages(const SheetPlan& plan, SheetPainter& sheets, QPdfWriter& writer,
                QProgressDialog& progress)
{
    QPainter painter(&writer);
    if (!painter.isActive())
        return false;
    const QRectF sheet(0.0, 0.0, plan.size.width() / 25.4 * DotsPerInch,
                       plan.size.height() / 25.4 * DotsPerInch);
    QElapsedTimer slice;
    slice.start();
    for (int page = 0; page < plan.pageCount(); ++page) {
        if (slice.elapsed() >= SliceMs) {
            progress.setValue(page); // processes the dialog's events
            slice.restart();
        }
        if (progress.wasCanceled() || (page > 0 && !writer.newPage()))
            return false;
        sheets.paint(painter, sheet, plan, page);
    }
    return painter.end();
}
} // namespace

SheetExport exportSheets(const SheetPlan& plan, SheetPainter& painter, const QString& path,
                         QWidget* parent, QString* trouble)
{
    QSaveFile file(path);
    if (plan.isEmpty() || !file.open(QIODevice::WriteOnly)) {
        *trouble = file.errorString();
        return SheetExport::Failed;
    }
    QProgressDialog progress(QCoreApplication::translate("exportSheets", "Writing the sheets ..."),
                             QCoreApplication::translate("exportSheets", "Cancel"), 0,
                             plan.pageCount(), parent);
    progress.setObjectName(QStringLiteral("SheetProgress"));
    progress.setWindowModality(Qt::ApplicationModal); // the plan must not change during the export
    progress.setMinimumDuration(ShowsAfterMs);
    progress.setValue(0); // starts measuring time
    bool isWritten = false;
    {
        QPdfWriter writer(&file);
        setUp(writer, plan, path);
        isWritten = writePages(plan, painter, writer, progress);
    }
    if (isWritten && file.commit())
        return SheetExport::Done;
    *trouble = file.errorString();
    file.cancelWriting();
    return progress.wasCanceled() ? SheetExport::Cancelled : SheetExport::Failed;
}

} // namespace workbench
