#include "WidgetTestSupport.h"

#include <exportSheets.h>
#include <MainWindow.h>
#include <ModelImages.h>
#include <PlatformLog.h>
#include <readSheetPlan.h>
#include <sheetCaptions.h>
#include <SheetPainter.h>
#include <SheetPreview.h>
#include <SheetView.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QProcess>
#include <QProgressDialog>
#include <QRadioButton>
#include <QScrollBar>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeWidget>

using testsupport::whenModal;
using namespace workbench;

namespace {
QByteArray commandLine(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(WORKBENCH), arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

template <class Widget>
Widget* find(const QWidget& window, const char* name)
{
    auto found = window.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

void trigger(const QWidget& window, const char* action)
{
    window.findChild<QAction*>(QLatin1String(action))->trigger();
}

/// A script of so many plots, on sheets with so many rows and columns.
QString longScript(int plots, const char* division = "2x1")
{
    return QStringLiteral("SIZE -URS SC 0 SPLI %1 MARG NO FORM STAN\nVIEW EG3\n")
               .arg(QLatin1String(division)) +
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
} // namespace

class tst_sheetPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void planOfScript_data();
    void planOfScript();
    void views();
    void twoLoadCasesInOnePicture();
    void anyText_data();
    void anyText();
    void captionsGoToTheirPictures_data();
    void captionsGoToTheirPictures();
    void scales();
    void leafing();
    void followsTheChoice();
    void exportFromTheWindow_data();
    void exportFromTheWindow();
    void cancelledExport();
    void unwritableFile();

private:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString project() const { return path(QStringLiteral("building.zob")); }

    QTemporaryDir m_folder;
};

void tst_sheetPreview::initTestCase()
{
    PlatformLog::install();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path(QStringLiteral("ini")));
    commandLine({QStringLiteral("new"), project(), QStringLiteral("--model"),
                 QStringLiteral("building"), QStringLiteral("--language"),
                 QStringLiteral("english")});
    QVERIFY(QFile::exists(project()));
}

void tst_sheetPreview::init()
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    VKD_QT_InitTranslator::languageChanged();
}

void tst_sheetPreview::planOfScript_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("rows");
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("textHeight");
    QTest::addColumn<int>("lastView");
    const QSizeF standing(210, 297);
    const QSizeF lying(297, 210);
    const double fit = SheetPlan::ScaleToFit;
    const int spatial = PictureView::Spatial;
    QTest::newRow("default") << "fontSizeText=2" << standing << 2 << fit << 2.0 << spatial;
    QTest::newRow("one a page") << "picturesId=0" << standing << 1 << fit << 2.0 << spatial;
    QTest::newRow("landscape") << "formatId=1" << lying << 1 << fit << 2.0 << spatial;
    QTest::newRow("scale") << "scaleMode=0 scaleIndex=8 scaleText=1:100" << standing << 2 << 100.0
                           << 2.0 << spatial;
    QTest::newRow("usual scale") << "scaleMode=0 scaleIndex=0" << standing << 2
                                 << SheetPlan::EngineeringScale << 2.0 << spatial;
    QTest::newRow("font") << "fontSizeText=3.5" << standing << 2 << fit << 3.5 << spatial;
    QTest::newRow("giant font") << "fontSizeText=999" << standing << 2 << fit << 10.0 << spatial;
    QTest::newRow("X/Z") << "viewId=1" << standing << 2 << fit << 2.0 << int(PictureView::PlaneXZ);
}

/// The same sheet from both languages of keywords.
void tst_sheetPreview::planOfScript()
{
    QFETCH(const QString, settings);
    for (const char* keywords : {"english", "german"}) {
        QStringList arguments{QStringLiteral("script"), project(), QStringLiteral("--keywords"),
                              QLatin1String(keywords)};
        for (const QString& setting : settings.split(QLatin1Char(' ')))
            arguments << QStringLiteral("--set") << setting;
        const SheetPlan plan = readSheetPlan(QString::fromUtf8(commandLine(arguments)));
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
        QVERIFY(plan.pictures.last().command.startsWith(
            QLatin1String(keywords[0] == 'e' ? "BEAM REIN SIDE LOWE" : "STAB BEWE SEIT UNTE")));
    }
}

void tst_sheetPreview::views()
{
    const SheetPlan plan = readSheetPlan(QStringLiteral(
        "SIZE A3 SPLI 3x2\nA\nVIEW EG3\nB\nC\nBEOB TYP EGYZ ; PERS INFI\nD\n"
        "VIEW TYPE STAN 1 -0.5 2 ROTA 30\nE\nVIEW \nF\nBEOB EGX $ EG3\nG ; H $(SCHR)\n"));
    QCOMPARE(plan.size, QSizeF(420, 297));
    QCOMPARE(plan.picturesPerPage(), 6);
    QCOMPARE(plan.pageCount(), 2);
    QVector<int> kinds;
    for (const SheetPicture& picture : plan.pictures)
        kinds << plan.views[picture.view].kind;
    QCOMPARE(kinds, QVector<int>({PictureView::Unset, PictureView::Spatial, PictureView::Spatial,
                                  PictureView::PlaneYZ, PictureView::Free, PictureView::Unset,
                                  PictureView::Flat, PictureView::Flat}));
    const PictureView& free = plan.views[plan.pictures[4].view];
    QCOMPARE(free.eye[1], -0.5);
    QCOMPARE(free.roll, 30.0);
    QCOMPARE(plan.pictures.last().command, QStringLiteral("H $(SCHR)"));
}

/// One picture, though the plot stands in the script twice.
void tst_sheetPreview::twoLoadCasesInOnePicture()
{
    testsupport::writeFile(path(QStringLiteral("cases.txt")), "1 12 12+14: Wind\n");
    for (const char* keywords : {"english", "german"}) {
        const SheetPlan plan = readSheetPlan(QString::fromUtf8(
            commandLine({QStringLiteral("script"), project(), QStringLiteral("--keywords"),
                         QLatin1String(keywords), QStringLiteral("--load-cases"),
                         path(QStringLiteral("cases.txt"))})));
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

void tst_sheetPreview::anyText_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("perPage");
    const auto row = [](const char* script, int pictures, int perPage) {
        QTest::newRow(script) << QString::fromLatin1(script) << pictures << perPage;
    };
    row("", 0, 1);
    row("no script at all; ; $ \n\n", 0, 1);
    row("SIZE", 0, 1);
    row("SIZE\nA", 1, 1);
    row("END\nSIZE\nA", 0, 1);
    row("SIZE -URS SPLI 0x0\nA", 1, 1);
    row("SIZE -URS SPLI 9999999x9\nA", 1, 90);
    row("SIZE -URS SPLI 99999999999999999999x-3\nA", 1, 10);
    row("SIZE -URS SPLI xx\nA", 1, 1);
    row("SIZE -URS SPLI\nA", 1, 1);
    row("SIZE -A9 SC NaN SPLI 2\nA", 1, 1);
    row("SIZE A0 SC inf SPLI 2x2 MARG YES\nA", 1, 4);
    row("SIZE -A6 SC 1e300*1e300 SPLI 10x10\nSCHH H6 NaN\nA", 1, 100);
    row("SIZE URS SC -5\nSCHR H6 -1\nSCHH\nA", 1, 1);
    row("SIZE URS SC 0.0001\nVIEW TYPE STAN\nA", 1, 1);
    row("SIZE URS SC 1:100\nVIEW TYPE STAN NaN 0 0 ROTA inf\nA\nVIEW TYPE STAN 0 0 0\nB", 2, 1);
    row("SIZE URS\nVIEW TYPE STAN 1e300 1 1 ROTA 1e300\nLC 99999999999\nA\nLF -3\nB\nLC\nC", 3, 1);
    row("AND\nSIZE URS\nAND\nA ; AND ; AND\nB\n\"\"\"\n$(", 2, 1);
    QTest::newRow("long") << longScript(100000) << 100000 << 2;
    QTest::newRow("zeros") << QStringLiteral("SIZE URS\nA") + QString(1000, QChar(0)) << 1 << 1;
    QTest::newRow("one line") << QStringLiteral("SIZE ") + QStringLiteral("URS ").repeated(100000)
                              << 0 << 1;
}

/// Whatever the text is, its pages can be drawn.
void tst_sheetPreview::anyText()
{
    QFETCH(const QString, script);
    const SheetPlan plan = readSheetPlan(script);
    QTEST(plan.pictures.size(), "pictures");
    QTEST(plan.picturesPerPage(), "perPage");
    ModelImages none(0);
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

void tst_sheetPreview::captionsGoToTheirPictures_data()
{
    QTest::addColumn<QVector<int>>("rows"); // load cases, 0 for a plot that stands alone
    QTest::addColumn<bool>("agree");
    QTest::newRow("alike") << QVector<int>{0, 3, 3, 0} << true;
    QTest::newRow("one more") << QVector<int>{0, 3, 3, 0, 0} << false;
    QTest::newRow("one less") << QVector<int>{0, 3, 3} << false;
    QTest::newRow("other load case") << QVector<int>{0, 3, 4, 0} << false;
    QTest::newRow("none") << QVector<int>{} << false;
}

void tst_sheetPreview::captionsGoToTheirPictures()
{
    QFETCH(const QVector<int>, rows);
    QFETCH(const bool, agree);
    SheetPlan plan = readSheetPlan(QStringLiteral("SIZE URS\nA\nLC 3 DESI 3\nB\nC\nD\n"));
    QVector<PlotCaption> offered;
    for (int loadCase : rows)
        offered.append({QStringLiteral("Plot %1").arg(offered.size()), loadCase,
                        loadCase ? QStringLiteral("Snow") : QString()});
    QCOMPARE(setCaptions(&plan, offered), agree);
    setLoadCaseTitles(&plan, {{3, QStringLiteral("Wind")}});
    const QStringList keywords{QStringLiteral("A|"), QStringLiteral("B|Load case 3: Wind"),
                               QStringLiteral("C|Load case 3: Wind"),
                               QStringLiteral("D|Load case 3: Wind")};
    const QStringList chosen{QStringLiteral("Plot 0|"), QStringLiteral("Plot 1|Load case 3: Snow"),
                             QStringLiteral("Plot 2|Load case 3: Snow"), QStringLiteral("Plot 3|")};
    QCOMPARE(captions(plan), agree ? chosen : keywords);
}

void tst_sheetPreview::scales()
{
    const auto document = VKD_H_ZOBDoc::open(project());
    ModelImages models(document->index());
    PictureView view;
    view.kind = PictureView::PlaneXY; // 19.5 m by 13.5 m with the raft
    const QSizeF frame(180, 110);
    const double fitting = models.scale(view, frame, SheetPlan::ScaleToFit);
    QVERIFY(fitting > 13.5 / 0.110 && fitting < 1.3 * 13.5 / 0.110);
    QVERIFY(!models.isCut(view, frame, fitting));
    QCOMPARE(models.scale(view, frame, SheetPlan::EngineeringScale), 200.0);
    QCOMPARE(models.scale(view, frame, 50.0), 50.0);
    QVERIFY(models.isCut(view, frame, 50.0));
    QCOMPARE(models.scale(view, {5, 5}, SheetPlan::EngineeringScale), 6000.0);
}

void tst_sheetPreview::leafing()
{
    SheetPreview preview;
    preview.resize(500, 600);
    preview.show();
    auto view = find<SheetView>(preview, "SheetView");
    auto number = find<QSpinBox>(preview, "SheetPage");
    QVERIFY(!find<QWidget>(preview, "ExportSheets")->isEnabled());
    preview.setPlan(readSheetPlan(longScript(100000)));
    QCOMPARE(number->maximum(), 50000);
    const auto press = [&](QWidget* widget, Qt::Key key) {
        QTest::keyClick(widget, key);
        return number->value();
    };
    QCOMPARE(press(view, Qt::Key_PageDown), 2);
    QCOMPARE(press(number, Qt::Key_PageDown), 3);
    QCOMPARE(press(find<QWidget>(preview, "SheetZoom"), Qt::Key_PageUp), 3); // the list's own
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

    // A page that is larger than the view is read to its end first.
    find<QComboBox>(preview, "SheetZoom")->setCurrentIndex(SheetView::PageWidth);
    QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(press(view, Qt::Key_PageDown), 700);
    QCOMPARE(press(view, Qt::Key_PageDown), 701);
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QCOMPARE(press(view, Qt::Key_PageUp), 700);
    QVERIFY(view->verticalScrollBar()->value() > 0);

    // A sheet on paper has the sides of the sheet on the screen.
    const QSizeF sheet = view->sheetRect().size();
    QVERIFY(qAbs(sheet.width() / sheet.height() - 210.0 / 297.0) < 0.002);
    preview.setPlan(readSheetPlan(longScript(10)));
    QCOMPARE(number->value(), 5);
    preview.setPlan(SheetPlan());
    QVERIFY(!number->isEnabled());
    QVERIFY(view->sheetRect().isNull());
}

void tst_sheetPreview::followsTheChoice()
{
    MainWindow window({});
    window.show();
    QVERIFY(window.openProject(project()));
    trigger(window, "SheetPreviewAction");
    auto preview = window.findChild<SheetPreview*>();
    QTRY_COMPARE(preview->plan().pageCount(), 25);
    QStringList shown = captions(preview->plan());
    QCOMPARE(shown.first(), QStringLiteral("System \u2013 Overview \u2013 Materials|"));
    QVERIFY(shown.contains(QStringLiteral("Displacements \u2013 Nodes \u2013 Deformed structure|"
                                          "Load case 1: Self-weight")));
    QCOMPARE(shown.last(),
             QStringLiteral("Design of beams \u2013 Longitudinal reinforcement \u2013 "
                            "Reinforcement bottom|Load case 103: SLS, quasi-permanent"));
    trigger(window, "Output");
    auto dialog = find<QDialog>(window, "OutputDialog");
    dialog->findChild<QTreeWidget*>()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QTRY_COMPARE(preview->plan().pictures.first().loadCase, 1);
    shown = captions(preview->plan());
    for (QRadioButton* button : dialog->findChildren<QRadioButton*>())
        if (button->text() == QLatin1String("Landscape"))
            button->click();
    QTRY_COMPARE(preview->plan().size, QSizeF(297, 210));
    QCOMPARE(captions(preview->plan()), shown);
    find<QComboBox>(window, "KeywordLanguage")->setCurrentIndex(0);
    QCOMPARE(captions(preview->plan()), shown);
    trigger(window, "German");
    QVERIFY(captions(preview->plan()).first().contains(QLatin1String("|Lastfall 1: ")));
    trigger(window, "English");
    find<QDialog>(window, "OutputDialog")->reject();
    QTRY_COMPARE(preview->plan().pageCount(), 25);
}

void tst_sheetPreview::exportFromTheWindow_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("box"); // points
    QTest::addColumn<int>("pages");
    QTest::newRow("portrait") << "Portrait" << QByteArray("[0 0 595.000000 842.000000]") << 25;
    QTest::newRow("landscape") << "Landscape" << QByteArray("[0 0 842.000000 595.000000]") << 50;
}

void tst_sheetPreview::exportFromTheWindow()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, box);
    QFETCH(const int, pages);
    const QString file = path(format + QLatin1String(".pdf"));
    MainWindow window({});
    window.show();
    QVERIFY(window.openProject(project()));
    trigger(window, "SheetPreviewAction");
    auto preview = window.findChild<SheetPreview*>();
    QTRY_VERIFY(!preview->plan().isEmpty());
    trigger(window, "Output");
    auto dialog = find<QDialog>(window, "OutputDialog");
    for (QRadioButton* button : dialog->findChildren<QRadioButton*>())
        if (button->text() == format)
            button->click();
    QTRY_COMPARE(preview->plan().pageCount(), pages);
    whenModal([file](QWidget* files) {
        auto name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(file.chopped(4)); // the suffix comes by itself
        QTest::keyClick(name, Qt::Key_Return);
    });
    find<QAbstractButton>(window, "ExportSheets")->click();
    const QByteArray bytes = testsupport::readFile(file);
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.trimmed().endsWith("%%EOF"));
    QCOMPARE(bytes.count("/Type /Page\n"), pages);

    QCOMPARE(bytes.count("/MediaBox " + box), pages);
    // All pictures of a view are one in the file.
    QCOMPARE(bytes.count("/Subtype /Image"), 2);
    dialog->reject();
}

void tst_sheetPreview::cancelledExport()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("kept.pdf"));
    testsupport::writeFile(file, "what was there");
    const SheetPlan plan = readSheetPlan(longScript(100000));
    ModelImages none(0);
    SheetPainter painter(&none, QStringLiteral("Project"));
    whenModal([](QWidget* progress) { qobject_cast<QProgressDialog*>(progress)->cancel(); });
    QString trouble;
    QVERIFY(exportSheets(plan, painter, file, nullptr, &trouble) == SheetExport::Cancelled);
    QCOMPARE(testsupport::readFile(file), QByteArray("what was there"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("kept.pdf")});
}

void tst_sheetPreview::unwritableFile()
{
    MainWindow window({});
    window.show();
    QVERIFY(window.openProject(project()));
    QTRY_VERIFY(window.findChild<QAction*>(QStringLiteral("ExportSheetsAction"))->isEnabled());
    QString message;
    whenModal([&message](QWidget* files) {
        auto name = files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(QStringLiteral("/proc/sheets.pdf"));
        whenModal([&message](QWidget* box) {
            message = qobject_cast<QMessageBox*>(box)->text();
            qobject_cast<QDialog*>(box)->accept();
        });
        QTest::keyClick(name, Qt::Key_Return);
    });
    trigger(window, "ExportSheetsAction");
    QTRY_VERIFY2(message.startsWith(QLatin1String("The sheets cannot be written.\n")),
                 qPrintable(message));
    QVERIFY(message.section(QLatin1Char('\n'), 1).size() > 5);
}

PLIB_WIDGET_TEST_MAIN(tst_sheetPreview)
#include "tst_sheetPreview.moc"
