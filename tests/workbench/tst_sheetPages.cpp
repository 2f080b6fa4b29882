#include "ProjectTest.h"
#include "sheet/ModelImages.h"
#include "sheet/readSheetPlan.h"
#include "sheet/sheetCaptions.h"
#include "sheet/SheetPainter.h"

#include <VKD_H_ZOBDoc.h>

#include <QPaintEngine>
#include <QPainter>

using namespace windowtest;
using namespace workbench;

namespace {
/// Records the texts, images and outlines on a page, in units of the paper device.
class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine()
        : QPaintEngine(AllFeatures)
    {
    }
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    Type type() const override { return User; }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawImage(const QRectF& area, const QImage&, const QRectF&,
                   Qt::ImageConversionFlags) override
    {
        images << seen(area);
    }
    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count && painter()->brush().style() == Qt::NoBrush; ++i)
            outlines << seen(rects[i]);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        texts << item.text();
        places << seen({at.x(), at.y() - item.ascent(), item.width(), item.ascent()});
    }

    QStringList texts;
    QVector<QRectF> places, images, outlines;

private:
    QRectF seen(const QRectF& area) const { return painter()->deviceTransform().mapRect(area); }
};

class RecordedPage : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &engine; }
    mutable RecordingEngine engine;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        return metric == PdmDevicePixelRatio || metric == PdmDepth ? 1 : 1000;
    }
};
} // namespace

/// Tests the layout and the scale of sheets.
class tst_sheetPages : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void scales()
    {
        const auto document = VKD_H_ZOBDoc::open(copy("building.zob"));
        ModelImages models(document->handle());
        PictureView view;
        view.kind = PictureView::PlaneXY; // the model measures 19.5 m by 13.5 m with the raft
        const QSizeF frame(180, 110);
        const double fitting = models.scale(view, frame, SheetPlan::ScaleToFit);
        QVERIFY(fitting > 13.5 / 0.110 && fitting < 1.3 * 13.5 / 0.110);
        QVERIFY(!models.isCut(view, frame, fitting));
        QCOMPARE(models.scale(view, frame, SheetPlan::EngineeringScale), 200.0);
        QCOMPARE(models.scale(view, frame, 50.0), 50.0);
        QVERIFY(models.isCut(view, frame, 50.0));
        QCOMPARE(models.scale(view, {5, 5}, SheetPlan::EngineeringScale), 6000.0);
    }

    /// The texts of a page neither overlap nor leave the page, and each picture is within its
    /// frame.
    void page()
    {
        const auto document = VKD_H_ZOBDoc::open(copy("building.zob"));
        ModelImages models(document->handle());
        SheetPlan plan = readSheetPlan(
            QStringLiteral("SIZE A4 SC 200 SPLI 2x3 MARG YES\nVIEW EGXY\nA\nB\nLC 3\nC\nD LEGE\n"
                           "VIEW EG3\nE\nLC 5\nF\nG\n"));
        setLoadCaseTitles(&plan,
                          {{3, QStringLiteral("Wind")}, {5, QString(300, QLatin1Char('x'))}});
        QStringList texts;
        for (int number = 0; number < plan.pageCount(); ++number) {
            RecordedPage page;
            QPainter painter(&page);
            SheetPainter(&models, QStringLiteral("Project"))
                .paint(painter, {100, 200, 2970, 2100}, plan, number);
            painter.end();
            const RecordingEngine& drawn = page.engine;
            const QRectF border = drawn.outlines.first();
            QVERIFY(border.adjusted(-2, -2, 2, 2).contains({200, 300, 2770, 1900}));
            QVERIFY(QRectF(198, 298, 2774, 1904).contains(border)); // a margin of 10 mm
            QCOMPARE(drawn.images.size(), number == 0 ? 5 : 1);
            QCOMPARE(drawn.outlines.size(), number == 0 ? 13 : 3);
            for (int i = 1; i < drawn.outlines.size(); ++i)
                QVERIFY(border.contains(drawn.outlines[i]));
            for (int i = 2; i < drawn.outlines.size(); i += 2) { // the frames, in reading order
                QVERIFY(drawn.outlines[i].contains(drawn.outlines[i - 1]));
                for (int other = 2; other < i; other += 2)
                    QVERIFY(!drawn.outlines[i].intersects(drawn.outlines[other]));
            }
            for (int i = 0; i < drawn.places.size(); ++i) {
                QVERIFY2(border.contains(drawn.places[i]), qPrintable(drawn.texts[i]));
                for (int other = 0; other < i; ++other)
                    QVERIFY2(!drawn.places[i].intersects(drawn.places[other]),
                             qPrintable(drawn.texts[i] + QLatin1Char('/') + drawn.texts[other]));
                texts << drawn.texts[i].section(QLatin1String("xx"), 0, 0);
            }
        }
        const QString note = QStringLiteral("Preview without results, which the graphics program "
                                            "draws|");
        const QString plane = QStringLiteral("X/Y plane, 1:200, cut off|");
        const QString spatial = QStringLiteral("3D Standard, 1:200, cut off|");
        const QString wind = QStringLiteral("Load case 3: Wind|");
        const QString longTitle = QStringLiteral("Load case 5: |");
        QCOMPARE(texts.join(QLatin1Char('|')),
                 QLatin1String("Page 1 of 2|Project|") + note + plane + QLatin1String("1  A|") +
                     plane + QLatin1String("2  B|") + plane + wind + QLatin1String("3  C|Legend|") +
                     wind + QLatin1String("4  D LEGE|") + spatial + wind + QLatin1String("5  E|") +
                     spatial + longTitle + QLatin1String("6  F|Page 2 of 2|Project|") + note +
                     spatial + longTitle + QLatin1String("7  G"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_sheetPages)
#include "tst_sheetPages.moc"
