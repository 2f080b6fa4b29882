#include "project/output/OutputList.h"
#include "TestSupport.h"

#include <VKD_H_ZOBDoc.h>

#include <QProcess>
#include <QTemporaryDir>

using testsupport::readFile;
using testsupport::writeFile;

/// Tests the command line as a user runs it: the real program, its output and its exit code.
class TestCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char* model : {"building", "slab", "hall"}) {
            const Result made = run(QStringLiteral("new %1.zob --language english --model %1")
                                        .arg(QLatin1String(model)));
            QCOMPARE(made.error, QString());
            QCOMPARE(made.exitCode, 0);
        }
    }

    void samples_data()
    {
        // The models differ in their views, which depend on the kind of system, and in their
        // content.
        const Columns<QString, QString> row("has", "hasNot");
        row("building", "\nVIEW EG3\n", "\nCABL");
        row("slab", "\nVIEW EGX\n", "\nBEAM");
        row("hall", "\nCABL", "\nEntries");
    }

    void samples()
    {
        QFETCH(const QString, has);
        QFETCH(const QString, hasNot);
        const QString command =
            QStringLiteral("script %1.zob").arg(QLatin1String(QTest::currentDataTag()));
        const Result english = run(command);
        QCOMPARE(english.error, QString());
        QVERIFY(english.out.startsWith(QLatin1String("PROG GRAV $ Graphical Output\nHEAD ")));
        QVERIFY(english.out.endsWith(QLatin1String("\nEND\n")));
        QVERIFY(english.out.contains(QLatin1String("QSEC"))); // all models have area elements
        QVERIFY2(english.out.contains(has), qPrintable(english.out));
        QVERIFY2(!english.out.contains(hasNot), qPrintable(english.out));
        const Result german = run(command + QLatin1String(" --keywords german"));
        QVERIFY(german.out.contains(QLatin1String("\nKOPF ")));
        QVERIFY(german.out.endsWith(QLatin1String("\nENDE\n")));
        QCOMPARE(german.out.count(QLatin1Char('\n')), english.out.count(QLatin1Char('\n')));
        const QString check = QStringLiteral("check script --project %1.zob")
                                  .arg(QLatin1String(QTest::currentDataTag()));
        writeFile(path("script"), german.out.toUtf8());
        QCOMPARE(run(check).out, QStringLiteral("script: no findings\n"));
        QByteArray mutant = german.out.toUtf8();
        mutant.replace("\nLF 1 ", "\nLF 77 ");
        writeFile(path("script"), mutant);
        const Result checked = run(check);
        QCOMPARE(checked.exitCode, 1);
        const int line = mutant.left(mutant.indexOf("\nLF ")).count('\n') + 2;
        QVERIFY2(checked.out.startsWith(
                     QStringLiteral("script:%1:4: the model has no load case 77\n").arg(line)),
                 qPrintable(checked.out));
    }

    void choiceIsStoredAndRestored()
    {
        const Result first = run("script slab.zob --selection-out choice.txt -o first.txt");
        QCOMPARE(first.exitCode, 0);
        QCOMPARE(first.out, QString());
        const QByteArray choice = readFile(path("choice.txt"));
        QVERIFY(choice.startsWith('\n'));
        QVERIFY(choice.contains("Partially:"));
        QCOMPARE(
            run("script slab.zob --selection choice.txt --selection-out again.txt -o second.txt")
                .exitCode,
            0);
        QCOMPARE(readFile(path("again.txt")), choice);
        QCOMPARE(readFile(path("second.txt")), readFile(path("first.txt")));
    }

    void settingsChangeTheScript_data()
    {
        const Columns<QString> row("line");
        row("--set scaleText=1:50 --set scaleIndex=8",
            "SIZE -URS SC 100*1.e+10 SPLI  2x1 MARG NO FORM STAN");
        row("--set scaleIndex=8 --set scaleMode=1", "SIZE -URS SC 0 SPLI  2x1 MARG NO FORM STAN");
        row("--set picturesId=0 --set formatId=0",
            "SIZE -URS SC 0 SPLI  2x1 MARG NO FORM STAN"); // as if each argument were a click
        row("--set hasFormat=0", "SIZE URS SC 0 MARG NO FORM STAN");
        row("--set viewId=4", "VIEW TYPE STAN 1 -2 1 ROTA 0");
        row("--set fontSizeText=3,5", "SCHH H6 0.35");
        row("--set fillAreas=1", "#define FILLI=AREA");
        row("--additional last", "last");
        row("--additional first --progname 222", "first");
        row("--progname 122 --set pageSplitId=1",
            "SIZE TYPE \"-URS\" SC 0 SPLI 2X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X1");
    }

    /// The name of the data row contains the arguments.
    void settingsChangeTheScript()
    {
        QFETCH(const QString, line);
        const Result result =
            run(QStringLiteral("script building.zob ") + QLatin1String(QTest::currentDataTag()));
        QCOMPARE(result.error, QString());
        QVERIFY2(result.out.split(QLatin1Char('\n')).contains(line), qPrintable(result.out));
    }

    void loadCasesFromFile()
    {
        writeFile(path("cases.txt"), "1 40 40+41: both\r\n\n2 50 design\n");
        const QString script = run("script building.zob --load-cases cases.txt").out;
        QVERIFY(script.contains(QLatin1String("\nLC 40 DESI 40\nCOLO C14 -1 ; ")));
        QVERIFY(script.contains(QLatin1String("\nLC 41 DESI 41\nCOLO STAN ; COLO C13 -1 ; ")));
        QVERIFY(script.contains(QLatin1String("\nLC 50 DESI 50\n")));
        QVERIFY(!script.contains(QLatin1String("LC 1 ")));
    }

    void savedChoice_data()
    {
        const Columns<QString, QString, QString> row("page", "options", "same");
        const auto saved = QStringLiteral("<Scale>1:20</Scale><Part>0</Part><View>1</View><List_4>"
                                          "Partially:&amp;L00   $L00   &amp;L01 : 2,6,</List_4>");
        const auto same = QStringLiteral(" --set scaleMode=0 --set scaleText=1:20 --set viewId=1 "
                                         "--set picturesId=0 --selection l2l6 --load-cases six");
        writeFile(path("l2l6"), "Partially:&L00   $L00   &L01 : 2,6,");
        writeFile(path("system"), "Checked:@SYS   $G00   ^G01");
        writeFile(path("six"), "1 6 six");
        writeFile(path("twoAndSix"), "1 2 two\n1 6 six");
        row("taken", saved, "", same);
        row("own view",
            QString(saved).replace(
                QLatin1String("<View>1"),
                QLatin1String("<Camera>camera1 0 -1 0 0 0 0 0 1</Camera><View>4")),
            "", QString(same).replace(QLatin1String("viewId=1"), QLatin1String("viewId=4")));
        for (const char* option : {" --set viewId=0", " --set scaleMode=1", " --set scaleIndex=0",
                                   " --selection system", " --load-cases twoAndSix"})
            row(option, saved, option, same + QLatin1String(option));
        for (const char* option : {" --proposed", " --progname 222", " --progname 122"})
            row(option, saved, option, option);
        row("damaged",
            "</View><Scale>1:7</Scale><View>2</View><Format>2</Format><Part>2</Part>"
            "<Font> </Font><List_4>Checked:",
            "", " --set viewId=2");
    }

    /// A script generated from a saved choice equals the script generated from arguments alone.
    void savedChoice()
    {
        QFETCH(const QString, page);
        QFETCH(const QString, options);
        QFETCH(const QString, same);
        QFile::copy(path("building.zob"), path("saved.zob"));
        const auto project = VKD_H_ZOBDoc::open(path("saved.zob"));
        const bool isDamaged = page.startsWith(QLatin1String("</"));
        const workbench::OutputState state{page, isDamaged ? 77 : 0, {isDamaged ? -3 : 2}};
        QVERIFY(state.put(project->handle()).isOk());
        QVERIFY(project->close().isOk());
        const Result expected = run(QLatin1String("script building.zob") + same);
        QVERIFY(expected.out.contains(QLatin1String("SIZE ")));
        const Result result = run(QLatin1String("script saved.zob") + options);
        QCOMPARE(result.error, QString());
        const QString ownView = QStringLiteral("STAN 0 -1 0 ROTA 0"); // not given as an argument
        QCOMPARE(result.out,
                 QString(expected.out).replace(QLatin1String("STAN 1 -2 1 ROTA 0"), ownView));
        QFile::remove(path("saved.zob"));
    }

    /// The scripts of named outputs are the same as those of projects with a single output. Without
    /// options, the script of the first output is printed.
    void namedOutputs()
    {
        QFile::copy(path("building.zob"), path("outputs.zob"));
        const auto project = VKD_H_ZOBDoc::open(path("outputs.zob"));
        auto outputs = workbench::OutputList::read(project->handle());
        outputs.setState({QStringLiteral("<Scale>1:20</Scale><View>2</View>"), 0, {2}}, true);
        outputs.add(QStringLiteral("Slab: 1/2"), {QStringLiteral("<View>1</View>"), 0, {}});
        outputs.add(QStringLiteral("slab_ 1:2"), {});
        outputs.add(QStringLiteral("no plots"),
                    {QStringLiteral("<List_4>Unchecked:-</List_4>"), 0, {}});
        QVERIFY(outputs.put(project->handle()).isOk());
        QVERIFY(project->close().isOk());
        QCOMPARE(run("outputs building.zob --language german").out, QStringLiteral("Ausgabe 1\n"));
        QCOMPARE(run("outputs outputs.zob --language german").out,
                 QStringLiteral("Output 1\nSlab: 1/2\nslab_ 1:2\nno plots\n"));
        const QString second = run("script building.zob --set viewId=1").out;
        QCOMPARE(run({QStringLiteral("script"), QStringLiteral("outputs.zob"),
                      QStringLiteral("--output"), QStringLiteral("slab: 1/2")})
                     .out,
                 second);
        const Result all = run("script outputs.zob --all --into made/all --language german");
        QCOMPARE(all.error,
                 QStringLiteral("plib_workbench: warning: outputs without plots: no plots\n"));
        QCOMPARE(all.out, QStringLiteral("made/all/Output 1.dat\nmade/all/Slab_ 1_2.dat\n"
                                         "made/all/slab_ 1_2 (2).dat\n"));
        const QString first = run("script outputs.zob --language german").out;
        QVERIFY(first.contains(QLatin1String("SIZE -URS SC 20*")));
        QCOMPARE(readFile(path("made/all/Output 1.dat")), first.toUtf8());
        QCOMPARE(readFile(path("made/all/slab_ 1_2 (2).dat")),
                 run("script building.zob --language german").out.toUtf8());
    }

    /// Titles may contain line breaks.
    void titlesInOneLine()
    {
        writeFile(path("lines.json"), R"({"title": "a\nb", "kindOfSystem": 6, "nodes": [],
            "groups": [], "loadCases": [{"number": 1, "title": "c\nd"}]})");
        QCOMPARE(run("new lines.zob --model lines.json").out,
                 QStringLiteral("lines.zob: a b, 0 nodes, 0 elements in 0 groups, 1 load cases\n"));
        QVERIFY(run("tree lines.zob").out.contains(QLatin1String("1 : c d\n")));
    }

    void otherShareFolder()
    {
        writeFile(path("graphicaloutput.data"), "1|0|0|A|B|C| |0| |0|3| |0|NUR HIER|ONLY HERE\n");
        const Result result =
            run({QStringLiteral("script"), QStringLiteral("slab.zob")}, m_folder.path());
        QVERIFY(result.out.contains(QLatin1String("\nVIEW EG3\nONLY HERE\nEND\n")));
        QCOMPARE(run({QStringLiteral("tree"), QStringLiteral("slab.zob"),
                      QStringLiteral("--progname"), QStringLiteral("122")},
                     m_folder.path())
                     .out,
                 QStringLiteral("No Entries in database!\n"));
    }

    void warningsOfThePlatform()
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("bad/texts"));
        writeFile(path("bad/texts/grav.txt"), "0|ABC|no English\n");
        const Result result =
            run({QStringLiteral("script"), QStringLiteral("slab.zob")}, path("bad"));
        QCOMPARE(result.exitCode, 0);
        QVERIFY(!result.out.isEmpty());
        QCOMPARE(result.error.section(QLatin1Char(':'), 0, 1),
                 QStringLiteral("plib_workbench: warning"));
        QVERIFY(result.error.endsWith(
            QLatin1String(":1: a text needs class, key, German and English\n")));
    }

    /// A journal that a crash left at the path would be rolled back into the new project.
    void namesWithPercentSigns()
    {
        const QString left = path("a%1%2b.zob-journal");
        writeFile(left, "x");
        const Result made = run("new a%1%2b.zob --model slab --language english");
        QCOMPARE(made.out,
                 QStringLiteral("a%1%2b.zob: Flat slab on columns with a balcony, 1278 nodes, "
                                "1198 elements in 4 groups, 16 load cases\n"));
        QVERIFY(!QFile::exists(left));
        QVERIFY(run("tree a%1%2b.zob").out.startsWith(QLatin1Char('[')));
    }

    void designRows()
    {
        QCOMPARE(run("new rows.zob --model slab").exitCode, 0);
        const QString summary =
            QStringLiteral("0.0° ;0.0° / 35.0 mm ;35.0 mm ;10.0 mm ;10.0 mm ;\tØ10 ; -  ; "
                           "-  / Ø10 ; -  ; - \t -  ; -  ; -  /  -  ; -  ; -  ;\n");
        const QString before = run("rows rows.zob --language english").out;
        QCOMPARE(before.count(QLatin1Char('\n')), 4);
        QVERIFY(before.startsWith(QLatin1String("Remaining Groups\tTwo Layers (orthogonal)\t") +
                                  summary));
        // The groups of a new row are removed from other rows, and a row that loses its last group
        // is deleted.
        QCOMPARE(run("rows rows.zob --set-row 4-9,gurx type=4 wko=unset --language english").error,
                 QString());
        const QString changed = run("rows rows.zob --language english").out;
        QVERIFY2(changed.endsWith(QLatin1String("\n4;GURX\tCircular\t") + summary),
                 qPrintable(changed));
        QCOMPARE(changed.count(QLatin1Char('\n')), 4);
        // In an existing row, values that the arguments do not mention are preserved, and a row
        // without groups is preserved in the project.
        run("rows rows.zob --set-row GURX;4 hio=0.05");
        run("rows rows.zob --set-row none type=3 dio=20");
        const QString again = run("rows rows.zob --language german").out;
        QVERIFY2(again.contains(QStringLiteral("\n4;GURX\tRingförmig\t")), qPrintable(again));
        QVERIFY(again.contains(QStringLiteral("0,0° ;0,0° / 50,0 mm ;35,0 mm ;")));
        QVERIFY(again.section(QLatin1Char('\n'), -2).contains(QStringLiteral("Ø20")));
    }

    /// Importing a table that was exported in German does not change the same project, and makes
    /// the rows of another project equal to it.
    void tablesOfRows()
    {
        for (const char* file : {"from.zob", "to.zob"})
            run(QStringLiteral("new %1 --model slab").arg(QLatin1String(file)));
        run("rows from.zob --set-row 4-9,gurx type=4 wko=0.1234567 hioq=unset");
        for (const char* groups : {"none type=3 dio=20", "none", "remaining aso=1"})
            run(QStringLiteral("rows from.zob --set-row ") + QLatin1String(groups));
        QCOMPARE(run("rows from.zob --export a.csv --language german").out, QString());
        QCOMPARE(run("rows from.zob --import a.csv --dry-run").out, QStringLiteral("no changes\n"));
        const QString changes = run("rows to.zob --import a.csv --dry-run --language english").out;
        for (const char* line :
             {"4: deleted", "4;GURX: new row",
              "4;GURX: Crack width upper principal [mm]:  -> 0.1234567",
              "Remaining Groups: Minimum reinforcement upper principal [cm²/m]:  -> 1.00"})
            QVERIFY2(changes.contains(QString::fromUtf8(line) + QLatin1Char('\n')),
                     qPrintable(changes));
        QCOMPARE(run("rows to.zob --import a.csv").out, run("rows from.zob").out);
        run("rows to.zob --export b.csv --language german");
        QCOMPARE(readFile(path("b.csv")), readFile(path("a.csv")));
    }

    void readingCommandsChangeNothing()
    {
        const QByteArray before = readFile(path("hall.zob"));
        for (const char* command : {"rows hall.zob", "script hall.zob", "tree hall.zob"})
            QCOMPARE(run(command).exitCode, 0);
        const auto writable = QFile::permissions(path("hall.zob"));
        QFile::setPermissions(path("hall.zob"), QFile::ReadOwner);
        const Result refused = run("rows hall.zob --set-row 9 type=2");
        QFile::setPermissions(path("hall.zob"), writable);
        QCOMPARE(refused.exitCode, 1);
        QCOMPARE(refused.error, QStringLiteral("plib_workbench: cannot lock hall.zob: the file "
                                               "or its folder is write-protected\n"));
        QVERIFY(readFile(path("hall.zob")) == before);
    }

    void strictCatalogue()
    {
        QCOMPARE(run("catalogue --strict").exitCode, 0);
        writeFile(path("bad.data"), "1|0|0|@A__ A|@B__ B|@C__ C|Quod|0| |0|3| |0|g|e\n");
        const Result loose = run("catalogue bad.data");
        QCOMPARE(loose.exitCode, 0);
        QCOMPARE(loose.out, QStringLiteral("1\t0\t0\tA\tB\tC\tQuod\t\t0\t3\t0\tg\te\n"));
        QCOMPARE(loose.error,
                 QStringLiteral("bad.data:1: unknown content tag \"Quod\": the plot is shown "
                                "for every model\n"));
        QCOMPARE(run("catalogue bad.data --strict").exitCode, 1);
    }

    void failures_data() // NOLINT(readability-function-size): a table
    {
        const Columns<QString> row("message"); // printed after the program name
        writeFile(path("noproject.zob"), "just a text that is long enough to be looked at");
        writeFile(path("bad.json"), "{\n \"title\": \"x\",\n oops }");
        writeFile(path("field.json"),
                  "{\"title\": \"x\", \"kindOfSystem\": 0, \"nodes\": [],"
                  " \"groups\": [{\"number\": 7, \"title\": \"g\"}], \"designParameters\":"
                  " [{\"groups\": [\"7\"], \"values\": {\"hiox\": 1}}]}");
        writeFile(path("badcases.txt"), "1 2 ok\n3 x y\n");
        row("paint", "unknown command \"paint\"; --help lists the commands");
        row("script", "FILE is missing");
        row("script a.zob b.zob", "unexpected argument \"b.zob\"");
        row("script --colour a.zob", "Unknown option 'colour'.");
        row("script absent.zob",
            "cannot open absent.zob: the file does not exist or cannot be opened");
        row("script noproject.zob",
            "cannot open noproject.zob: the file is not a project file (file is not a database)");
        row("script slab.zob --keywords french",
            "--keywords must be english or german, not \"french\"");
        row("script slab.zob --progname x", "--progname must be a whole number, not \"x\"");
        row("tree slab.zob --progname 99999", "--progname must be one of 1, 122, 222, not 99999");
        row("script slab.zob --set viewId", "--set requires NAME=VALUE, not \"viewId\"");
        row("script slab.zob --set viewId=5", "viewId must be a number from 0 to 4, not \"5\"");
        row("script slab.zob --set pageSplitId=1", "the page of --progname 1 has no pageSplitId");
        row("script slab.zob --progname 122 --set viewId=1",
            "the page of --progname 122 has no viewId");
        row("script slab.zob --set formatId=1 --set picturesId=1",
            "picturesId=1 requires the portrait format, formatId=0");
        row("script slab.zob --set scaleText=1:3",
            "scaleText must be one of 1:1 1:2 1:5 1:10 1:20 1:25 "
            "1:50 1:100 1:200 1:500 1:1000, not \"1:3\"");
        for (const char* refused : {"abc", "-3", "0.5", "1000", ""})
            row(QByteArray("script slab.zob --set fontSizeText=").append(refused).constData(),
                QStringLiteral("fontSizeText must be a number from 1 to 999, not \"%1\"")
                    .arg(QLatin1String(refused)));
        row("script slab.zob --selection absent.txt",
            "cannot read absent.txt: No such file or directory");
        row("script slab.zob --output x", "there is no output \"x\", only \"Output 1\"");
        row("script slab.zob --output x --proposed",
            "--output requires the saved choice of --progname 1");
        row("script slab.zob --all", "--into is missing");
        row("script slab.zob --into .", "--all is missing");
        row("script slab.zob --all --into . -o x", "--all and -o cannot be combined");
        row("script slab.zob --all --into bad.json/a", "cannot create the folder bad.json/a");
        row("script slab.zob --load-cases badcases.txt",
            "badcases.txt:2: a kind of 1 or 2, a number and a name are required");
        row("script slab.zob -o no/such/folder.txt --selection-out saved.txt",
            "cannot write no/such/folder.txt: No such file or directory");
        row("new slab.zob --model slab", "slab.zob already exists");
        row("new x.zob --model none", "there is no model \"none\"");
        row("new x.zob --model bad.json", "bad.json: line 3, column 3: unterminated object");
        row("new x.zob --model field.json", "field.json: designParameters of group 7: \"hiox=1\" "
                                            "does not set a field of a design record");
        row("new no/x.zob --model slab", "cannot create no/x.zob: the file does not exist or "
                                         "cannot be opened (No such file or directory)");
        row("rows slab.zob type=1", "--set-row is missing");
        row("rows slab.zob --set-row 99 type=1", "there is no group \"99\"");
        row("rows slab.zob --set-row ; type=1", "there is no group \"\"");
        row("rows slab.zob --dry-run", "--import is missing");
        row("rows slab.zob --set-row 1 --export a",
            "--set-row, --export and --import cannot be combined");
        row("rows slab.zob --export none/a", "cannot write none/a: No such file or directory");
        row("rows slab.zob --import none", "cannot read none: No such file or directory");
        row("rows slab.zob --import badcases.txt",
            "badcases.txt: Row 1: \"1 2 ok\" is not a column header.");
        row("rows slab.zob --set-row 1 colour=1",
            "\"colour=1\" does not set a field of a design record");
        row("rows slab.zob --set-row 1 type=5", "type cannot be \"5\"");
        row("rows slab.zob --set-row 1 hio=inf", "hio cannot be \"inf\"");
        row("script slab.zob -o both.txt --selection-out ./both.txt",
            "the script and the choice cannot both be written to both.txt");
        row("script slab.zob -o .", "cannot write .: it is not a file");
        row("check absent.txt", "cannot read absent.txt: No such file or directory");
        row("check slab.zob --project absent.zob",
            "cannot open absent.zob: the file does not exist or cannot be opened");
        row("snapshots noproject.zob pictures",
            "cannot open noproject.zob: the file is not a project file (file is not a database)");
        row("snapshots slab.zob bad.json/pictures", "cannot create the folder bad.json/pictures");
        row("snapshots slab.zob none --pixel-ratio 5",
            "--pixel-ratio must be a number from 1 to 4, not \"5\"");
    }

    /// A command that cannot be completed makes no changes.
    void failures()
    {
        const QDir folder(m_folder.path());
        const QStringList before = folder.entryList();
        const Result result = run(QTest::currentDataTag());
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.out, QString());
        QFETCH(const QString, message);
        QCOMPARE(result.error, QStringLiteral("plib_workbench: %1\n").arg(message));
        QCOMPARE(folder.entryList(), before);
    }

    void help()
    {
        for (const char* command : {"", "new", "rows", "script", "outputs", "check", "catalogue",
                                    "tree", "snapshots", "window"}) {
            const QString name = QLatin1String(command);
            const Result result = run((name + QLatin1String(" --help")).trimmed());
            QCOMPARE(result.exitCode, 0);
            QCOMPARE(result.error, QString());
            const QString begins =
                name.isEmpty() ? QStringLiteral("COMMAND") : name + QLatin1String(" [options]");
            QVERIFY2(result.out.startsWith(QLatin1String("Usage: plib_workbench ") + begins),
                     qPrintable(result.out));
        }
    }

    void fullDisk()
    {
        QProcess full;
        full.setStandardOutputFile(QStringLiteral("/dev/full"));
        full.start(QStringLiteral(WORKBENCH), {QStringLiteral("new"), QStringLiteral("--help")});
        QVERIFY(full.waitForFinished(Patience));
        QCOMPARE(full.exitStatus(), QProcess::NormalExit);
        QCOMPARE(full.exitCode(), 1);
    }

private:
    struct Result
    {
        int exitCode;
        QString out;
        QString error;
    };

    Result run(const QStringList& arguments, const QString& share = QString()) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("VKD_SHARE"), share);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(WORKBENCH), arguments);
        process.waitForFinished(Patience);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    /// Runs the command line with arguments separated by spaces.
    Result run(const QString& arguments) const { return run(arguments.split(QLatin1Char(' '))); }
    Result run(const char* arguments) const { return run(QString::fromUtf8(arguments)); }
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

PLIB_TEST_MAIN(TestCommandLine)
#include "tst_commandLine.moc"
