#include "ProjectTest.h"
#include "sheet/exportSheets.h"
#include "sheet/ModelImages.h"
#include "sheet/readSheetPlan.h"
#include "sheet/sheetCaptions.h"
#include "sheet/SheetPainter.h"
#include "sheet/SheetPlanCache.h"
#include "sheet/SheetPreview.h"
#include "sheet/SheetView.h"
#include "window/output/LoadCaseTable.h"

#include <VKD_H_ZOBDoc.h>

#include <QComboBox>
#include <QDebug>
#include <QPainter>
#include <QRadioButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSpinBox>
#include <QTreeWidget>
#include <QWheelEvent>

using namespace windowtest;
using namespace workbench;

namespace {
/// Returns a script with this number of plots on sheets with two rows.
QString longScript(int plots)
{
    return QStringLiteral("SIZE -URS SC 0 SPLI 2x1 MARG NO FORM STAN\nVIEW EG3\n") +
           QStringLiteral("LC 7 DESI 7\nBEAM MY\nBEAM N\n").repeated(plots / 2) +
           QStringLiteral("END\n");
}

QStringList captions(const SheetPlan& plan)
{
    QStringList texts;
    for (const SheetPicture& picture : plan.pictures)
        texts << SheetPainter::captionOf(picture) + QLatin1Char('|') +
                     SheetPainter::loadCaseOf(picture);
    return texts;
}

QString described(const SheetPlan& plan)
{
    QString text;
    QDebug out(&text);
    out << plan.size << plan.rows << plan.columns << plan.textHeight << plan.views.size();
    for (const SheetPicture& picture : plan.pictures)
        out << picture.command << plan.views[picture.view].kind << picture.view << picture.loadCase
            << picture.secondLoadCase;
    return text;
}

/// Clicks the button with this label in the output dialog.
void choose(const QWidget& window, const QString& label)
{
    for (QRadioButton* button :
         find<QDialog>(window, "OutputDialog")->findChildren<QRadioButton*>())
        if (button->text() == label)
            button->click();
}
} // namespace

class tst_sheetPreview : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void planOfScript_data()
    {
        const Columns<QString, QSizeF, int, double, double, int> row(
            "settings", "size", "rows", "scale", "textHeight", "lastView");
        const QSizeF standing(210, 297);
        const double fit = SheetPlan::ScaleToFit;
        const int spatial = PictureView::Spatial;
        row("default", "fontSizeText=2", standing, 2, fit, 2.0, spatial);
        row("one a page", "picturesId=0", standing, 1, fit, 2.0, spatial);
        row("landscape", "formatId=1", {297, 210}, 1, fit, 2.0, spatial);
        row("scale", "scaleMode=0 scaleIndex=8 scaleText=1:100", standing, 2, 100.0, 2.0, spatial);
        row("usual scale", "scaleMode=0 scaleIndex=0", standing, 2, SheetPlan::EngineeringScale,
            2.0, spatial);
        row("font", "fontSizeText=3.5", standing, 2, fit, 3.5, spatial);
        row("giant font", "fontSizeText=999", standing, 2, fit, 10.0, spatial);
        row("X/Z", "viewId=1", standing, 2, fit, 2.0, PictureView::PlaneXZ);
    }

    void planOfScript()
    {
        QFETCH(const QString, settings);
        QStringList arguments;
        for (const QString& setting : settings.split(QLatin1Char(' ')))
            arguments << QStringLiteral("--set") << setting;
        for (const SheetPlan& plan : plans(arguments)) {
            QTEST(plan.size, "size");
            QTEST(plan.rows, "rows");
            QCOMPARE(plan.columns, 1);
            QTEST(plan.scale, "scale");
            QTEST(plan.textHeight, "textHeight");
            QTEST(int(plan.views.last().kind), "lastView");
            QVERIFY(!plan.hasBorder);
            QCOMPARE(plan.pictures.size(), 50);
            QCOMPARE(plan.pageCount(), 50 / plan.rows);
            QCOMPARE(plan.pictures.first().loadCase, 0);
            QCOMPARE(plan.pictures.last().loadCase, 103);
            QCOMPARE(plan.pictures.last().secondLoadCase, 0);
        }
    }

    void views()
    {
        const SheetPlan plan = readSheetPlan(QStringLiteral(
            "SIZE A3 SPLI 3x2\nSCHH H6 none\nA\nVIEW EG3\nB\nC\nBEOB TYP EGYZ ; PERS INFI\nD\n"
            "VIEW TYPE STAN 1 -0.5 2 ROTA 30\nE\nVIEW \nF\nBEOB EGX $ EG3\nG ; H $(SCHR)\n"));
        QCOMPARE(plan.size, QSizeF(420, 297));
        QCOMPARE(plan.textHeight, SheetPlan().textHeight);
        QCOMPARE(plan.picturesPerPage(), 6);
        QCOMPARE(plan.pageCount(), 2);
        QVector<int> kinds;
        for (const SheetPicture& picture : plan.pictures)
            kinds << plan.views[picture.view].kind;
        QCOMPARE(kinds, QVector<int>({PictureView::Unset, PictureView::Spatial,
                                      PictureView::Spatial, PictureView::PlaneYZ, PictureView::Free,
                                      PictureView::Unset, PictureView::Flat, PictureView::Flat}));
        const PictureView& free = plan.views[plan.pictures[4].view];
        QCOMPARE(free.eye[1], -0.5);
        QCOMPARE(free.roll, 30.0);
        QCOMPARE(plan.pictures.last().command, QStringLiteral("H $(SCHR)"));
    }

    /// The plot occurs twice in the script but has a single picture.
    void twoLoadCasesInOnePicture()
    {
        writeFile(path("cases.txt"), "1 12 12+14: Wind\n");
        for (const SheetPlan& plan : plans({QStringLiteral("--load-cases"), path("cases.txt")})) {
            QVERIFY(!plan.isEmpty());
            int joined = 0;
            for (const SheetPicture& picture : plan.pictures) {
                QVERIFY(picture.secondLoadCase == 0 ||
                        (picture.loadCase == 12 && picture.secondLoadCase == 14));
                joined += picture.secondLoadCase ? 1 : 0;
            }
            QCOMPARE(joined, 10);
            QCOMPARE(SheetPainter::loadCaseOf(plan.pictures.last()),
                     QStringLiteral("Load cases 12 and 14"));
        }
    }

    void anyText_data()
    {
        const Columns<QString, int, int> row("script", "pictures", "perPage");
        row("nothing", "", 0, 1);
        row("no script", "no script at all; ; $ \n\n", 0, 1);
        row("bare", "SIZE\nA", 1, 1);
        row("ended", "END\nSIZE\nA", 0, 1);
        row("no parts", "SIZE -URS SPLI 0x0\nA", 1, 1);
        row("too many parts", "SIZE -URS SPLI 9999999x9\nA", 1, 90);
        row("huge parts", "SIZE -URS SPLI 99999999999999999999x-3\nA", 1, 10);
        row("parts without digits", "SIZE -URS SPLI xx\nA", 1, 1);
        row("cut", "SIZE -URS SPLI\nA", 1, 1);
        row("no format", "SIZE -A9 SC NaN SPLI 2\nA", 1, 1);
        row("infinite scale", "SIZE A0 SC inf SPLI 2x2 MARG YES\nA", 1, 4);
        row("huge scale", "SIZE -A6 SC 1e300*1e300 SPLI 10x10\nSCHH H6 NaN\nA", 1, 100);
        row("negative scale", "SIZE URS SC -5\nSCHR H6 -1\nSCHH\nA", 1, 1);
        row("tiny scale", "SIZE URS SC 0.0001\nVIEW TYPE STAN\nA", 1, 1);
        row("views", "SIZE URS SC 1:100\nVIEW TYPE STAN NaN 0 0 ROTA inf\nA\nVIEW TYPE STAN 0\nB",
            2, 1);
        row("load cases",
            "SIZE URS\nVIEW TYPE STAN 1e300 1 1 ROTA 1e300\nLC 99999999999\nA\nLF -3\nB\nLC\nC", 3,
            1);
        row("joined", "AND\nSIZE URS\nAND\nA ; AND ; AND\nB\n\"\"\"\n$(", 2, 1);
        row("long", longScript(100000), 100000, 2);
        row("zeros", QStringLiteral("SIZE URS\nA") + QString(1000, QChar(0)), 1, 1);
        row("one line", QStringLiteral("SIZE ") + QStringLiteral("URS ").repeated(100000), 0, 1);
    }

    /// The pages of any script can be drawn.
    void anyText()
    {
        QFETCH(const QString, script);
        const SheetPlan plan = readSheetPlan(script);
        QTEST(int(plan.pictures.size()), "pictures");
        QTEST(plan.picturesPerPage(), "perPage");
        ModelImages none{ZobHandle()};
        SheetPainter painter(&none, QStringLiteral("Project"));
        for (int page : {0, plan.pageCount() - 1}) {
            if (plan.isEmpty())
                continue;
            QImage image(120, 160, QImage::Format_RGB32);
            image.fill(Qt::red);
            QPainter paper(&image);
            painter.paint(paper, QRectF(10, 10, 100, 140), plan, page);
            QCOMPARE(image.pixelColor(13, 13), QColor(Qt::white));
            QCOMPARE(image.pixelColor(5, 5), QColor(Qt::red));
        }
    }

    /// After any change, the plan is the same as if the script had been read from the start.
    void changedScripts()
    {
        const char* const lines[] = {
            "SIZE A3 SPLI 2x1", "VIEW EG3", "VIEW EGX",    "LC 1 DESI 1", "LC 2", "A", "B ; AND",
            "A ; AND ; C",      "AND",      "SCHH H6 0.4", "$ END",       "END",  ""};
        QRandomGenerator random(1);
        QStringList script;
        SheetPlanCache plans(3);
        for (int step = 0; step < 3000; ++step) {
            const int place = random.bounded(script.size() + 1);
            for (int gone = random.bounded(4); gone > 0 && place < script.size(); --gone)
                script.removeAt(place);
            for (int come = random.bounded(script.size() < 60 ? 5 : 3); come > 0; --come)
                script.insert(place, QLatin1String(lines[random.bounded(int(std::size(lines)))]));
            const QString text = script.join(QLatin1Char('\n'));
            QCOMPARE(described(plans.planOf(text)), described(readSheetPlan(text)));
        }
    }

    void captionsBelongToTheirPictures_data()
    {
        // Load cases, or 0 for a plot without a load case.
        const Columns<QVector<int>, bool> row("rows", "agree");
        row("alike", {0, 3, 3, 0}, true);
        row("one more", {0, 3, 3, 0, 0}, false);
        row("one less", {0, 3, 3}, false);
        row("other load case", {0, 3, 4, 0}, false);
    }

    void captionsBelongToTheirPictures()
    {
        QFETCH(const QVector<int>, rows);
        QFETCH(const bool, agree);
        SheetPlan plan = readSheetPlan(QStringLiteral("SIZE URS\nA\nLC 3 DESI 3\nB\nC\nD\n"));
        QVector<PlotCaption> offered;
        for (int loadCase : rows)
            offered.append({QStringLiteral("Plot %1").arg(offered.size()), loadCase});
        setCaptions(&plan, offered);
        setLoadCaseTitles(&plan, {{3, QStringLiteral("Wind")}});
        QCOMPARE(captions(plan).join(QLatin1Char('\n')),
                 agree ? QStringLiteral("Plot 0|\nPlot 1|Load case 3: Wind\n"
                                        "Plot 2|Load case 3: Wind\nPlot 3|")
                       : QStringLiteral("A|\nB|Load case 3: Wind\nC|Load case 3: Wind\n"
                                        "D|Load case 3: Wind"));
    }

    void leafing()
    {
        QAction exportSheets;
        SheetPreview preview(&exportSheets);
        preview.resize(500, 600);
        preview.show();
        auto view = find<SheetView>(preview, "SheetView");
        auto number = find<QSpinBox>(preview, "SheetPage");
        preview.setPlan(readSheetPlan(longScript(100000)));
        const auto press = [&](QWidget* widget, Qt::Key key) {
            QTest::keyClick(widget, key);
            return number->value();
        };
        QCOMPARE(press(view, Qt::Key_PageDown), 2);
        QCOMPARE(press(number, Qt::Key_PageDown), 3);
        QCOMPARE(press(find<QWidget>(preview, "SheetZoom"), Qt::Key_PageUp), 3); // used by the list
        QCOMPARE(press(view, Qt::Key_PageUp), 2);
        QCOMPARE(press(view, Qt::Key_End), 50000);
        QCOMPARE(press(view, Qt::Key_PageDown), 50000);
        QVERIFY(!find<QWidget>(preview, "NextSheet")->isEnabled());
        find<QAbstractButton>(preview, "PreviousSheet")->click();
        QCOMPARE(view->page(), 49998);
        QCOMPARE(press(view, Qt::Key_Home), 1);
        number->setValue(700);
        QCOMPARE(view->page(), 699);
        QVERIFY(view->accessibleDescription().contains(QLatin1String("BEAM N, Load case 7")));

        // A page that is larger than the view is first scrolled to its end.
        find<QComboBox>(preview, "SheetZoom")->setCurrentIndex(SheetView::PageWidth);
        QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(press(view, Qt::Key_PageDown), 700);
        QCOMPARE(press(view, Qt::Key_PageDown), 701);
        QCOMPARE(view->verticalScrollBar()->value(), 0);
        QCOMPARE(press(view, Qt::Key_PageUp), 700);
        QVERIFY(view->verticalScrollBar()->value() > 0);

        // At actual size, the sheet can be scrolled so that its bottom right corner is visible.
        find<QComboBox>(preview, "SheetZoom")->setCurrentIndex(SheetView::ActualSize);
        QVERIFY(qAbs(view->sheetRect().width() * 25.4 / view->logicalDpiX() - 210.0) < 0.1);
        view->horizontalScrollBar()->setValue(view->horizontalScrollBar()->maximum());
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        const QRectF seen = view->viewport()->rect();
        const QPointF gap = seen.bottomRight() - view->sheetRect().bottomRight();
        QVERIFY(gap.x() > 5.0 && gap.x() < 15.0 && gap.y() > 5.0 && gap.y() < 15.0);

        // The whole sheet is centred. Small steps of the wheel add up to a page.
        find<QComboBox>(preview, "SheetZoom")->setCurrentIndex(SheetView::WholePage);
        const QRectF whole = view->viewport()->rect();
        QVERIFY(QLineF(view->sheetRect().center(), whole.center()).length() < 2.0);
        QVERIFY(whole.contains(view->sheetRect()));
        const auto wheel = [&](int delta) {
            QWheelEvent event({9, 9}, {9, 9}, {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(view->viewport(), &event);
            return number->value();
        };
        QVector<int> pages;
        for (int delta : {-60, -60, -100, 60, -60, 60, 60, 240})
            pages << wheel(delta);
        QCOMPARE(pages, QVector<int>({700, 701, 701, 701, 701, 701, 700, 698}));

        // A printed sheet has the same aspect ratio as the sheet on screen.
        const QSizeF sheet = view->sheetRect().size();
        QVERIFY(qAbs(sheet.width() / sheet.height() - 210.0 / 297.0) < 0.002);
        preview.setPlan(readSheetPlan(longScript(10)));
        QCOMPARE(number->value(), 5);
        preview.setPlan(SheetPlan());
        QVERIFY(!number->isEnabled());
        QVERIFY(view->sheetRect().isNull());
    }

    /// Plots can be checked while no load cases are offered, but they do not produce a picture.
    void withoutLoadCases()
    {
        const auto window = open("without.zob");
        trigger(*window, "SheetPreviewAction");
        auto view = window->findChild<SheetView*>();
        changeChoice(*window);
        auto dialog = find<QDialog>(*window, "OutputDialog");
        dialog->findChild<LoadCaseTable*>()->setLeftOutNumbers({1, 2, 3, 4, 5, 6, 7});
        auto tree = dialog->findChild<QTreeWidget*>();
        for (int top = 0; top < tree->topLevelItemCount(); ++top)
            tree->topLevelItem(top)->setCheckState(0, Qt::Checked);
        // A caption taken from the script would be "MATE LEGE".
        QTRY_COMPARE(captions(view->plan()).first(),
                     QStringLiteral("System \u2013 Overview \u2013 Materials|"));
        for (const SheetPicture& picture : view->plan().pictures)
            QVERIFY2(!picture.caption.isEmpty(), qPrintable(picture.command));
        trigger(*window, "German");
        QTRY_COMPARE(captions(view->plan()).first(),
                     QStringLiteral("System \u2013 \u00DCbersicht \u2013 Baustoffe|"));
    }

    void exportFromTheWindow_data()
    {
        const Columns<QString, QByteArray, int> row("format", "box", "pages"); // points
        row("portrait", "Portrait", "[0 0 595.000000 842.000000]", 25);
        row("landscape", "Landscape", "[0 0 842.000000 595.000000]", 50);
    }

    void exportFromTheWindow()
    {
        QFETCH(const QString, format);
        QFETCH(const QByteArray, box);
        QFETCH(const int, pages);
        const auto window = open("export.zob");
        trigger(*window, "Output");
        choose(*window, format);
        trigger(*window, "SheetPreviewAction");
        QTRY_COMPARE(window->findChild<SheetView*>()->plan().pageCount(), pages);
        answerFileDialog(path("sheets")); // the suffix is added
        find<QAbstractButton>(*window, "ExportSheets")->click();
        const QByteArray bytes = readFile(path("sheets.pdf"));
        QVERIFY(bytes.startsWith("%PDF-"));
        QVERIFY(bytes.trimmed().endsWith("%%EOF"));
        QCOMPARE(bytes.count("/MediaBox " + box), pages);
        QCOMPARE(bytes.count("/Subtype /Image"), 2); // one image for all pictures of a view
    }

    void cancelledExport()
    {
        const QString file = path("kept.pdf");
        writeFile(file, "what was there");
        const SheetPlan plan = readSheetPlan(longScript(100000));
        ModelImages none{ZobHandle()};
        SheetPainter painter(&none, QStringLiteral("Project"));
        QString trouble;
        const auto cancel = [](int pages) { return pages == 0; };
        QVERIFY(exportSheets(plan, painter, file, cancel, &trouble) == SheetExport::Cancelled);
        QCOMPARE(readFile(file), QByteArray("what was there"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{QStringLiteral("kept.pdf")});
    }

    /// A suffix is appended, so the dialog has asked about a different file.
    void replacedFileIsAskedAbout()
    {
        const auto window = open("export.zob");
        writeFile(path("kept.pdf"), "what was there");
        whenModal([this](QWidget* files) {
            whenModal([](QWidget* box) {
                whenModal([](QWidget* again) { qobject_cast<QDialog*>(again)->reject(); });
                press(box, QMessageBox::No);
            });
            enterFile(files, path("kept"));
        });
        trigger(*window, "ExportSheetsAction");
        QCOMPARE(readFile(path("kept.pdf")), QByteArray("what was there"));
    }

    void unwritableFile()
    {
        const auto window = open("export.zob");
        QStringList messages;
        whenModal([&messages](QWidget* files) {
            readMessage(messages);
            enterFile(files, QStringLiteral("/proc/sheets.pdf"));
        });
        trigger(*window, "ExportSheetsAction");
        QTRY_COMPARE(messages.size(), 1);
        QVERIFY(messages[0].startsWith(
            QLatin1String("The file /proc/sheets.pdf cannot be written.\n")));
        QVERIFY(messages[0].section(QLatin1Char('\n'), 1).size() > 5);
    }

private:
    /// Scripts with German and English keywords result in the same sheets.
    QVector<SheetPlan> plans(const QStringList& arguments) const
    {
        const QString project = copy("building.zob");
        QVector<SheetPlan> read;
        for (const char* keywords : {"english", "german"})
            read << readSheetPlan(QString::fromUtf8(
                commandLine(QStringList{QStringLiteral("script"), project,
                                        QStringLiteral("--keywords"), QLatin1String(keywords)} +
                            arguments)));
        return read;
    }
};

PLIB_WIDGET_TEST_MAIN(tst_sheetPreview)
#include "tst_sheetPreview.moc"
