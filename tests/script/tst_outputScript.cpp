#include "TestSupport.h"

#include <output/fontSize.h>
#include <script/outputScript.h>

#include <functional>

using plib::Keywords;
using plib::OutputSettings;
using plib::ScaleMode;

class FixedTexts : public plib::ScriptEnvironment
{
public:
    QString programHead() const override { return QStringLiteral("HEAD\n"); }
    QString programEnd(Keywords keywords) const override
    {
        return QString::fromLatin1(keywords == Keywords::English ? "END" : "ENDE");
    }
    bool hasQuads() const override { return quads; }
    QString camera() const override { return QStringLiteral("1 2 3"); }

    bool quads = false;
};

using Change = std::function<void(OutputSettings&)>;

Q_DECLARE_METATYPE(Change)

static OutputSettings settings(const Change& change)
{
    OutputSettings s;
    change(s);
    return s;
}

static const char EnglishFrame[] =
    "HEAD\n"
    "CTRL EMPT YES         $ create empty pages if results not available\n"
    "CTRL WARN (800 802 1) $ no warnings if no values found\n"
    "CTRL WARN (804 808 1) $ no warnings if no values found\n"
    "CTRL WARN 873         $ no warning for 2D visibility\n"
    "#define SCHR=0.2\n"
    "SCHH H6 0.2\n"
    "#define FILL=-\n#define FILLI=-\n#define FILLC=-\n#define SCHRI=-\n#define SCHRC=-\n"
    "%1SIZ2 SPLI PICT\n"
    "SIZE -URS SC 0 SPLI  2x1 MARG NO FORM STAN\n"
    "%2END\n";

static const char EnglishCuts[] = "VIEW EGXY    $ view in global Z direction\n"
                                  "MOVE UNIT PRWC X  0 Y 33 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  33 "
                                  "DTYP QSEC $ cut in global X direction\n"
                                  "MOVE UNIT PRWC X  0 Y 66 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  66 "
                                  "DTYP QSEC $ cut in global X direction\n"
                                  "MOVE UNIT PRWC X 33 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  33 Y 100 "
                                  "DTYP QSEC $ cut in global Y direction\n"
                                  "MOVE UNIT PRWC X 66 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  66 Y 100 "
                                  "DTYP QSEC $ cut in global Y direction\n";

static const char GermanFilled[] =
    "HEAD\n"
    "STEU LEER JA          $ leere Bilder erzeugen, wenn angeforderte Ergebnisse nicht darstellbar "
    "sind\n"
    "STEU WARN (800 802 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN (804 808 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN 873         $ keine Warnung wegen 2D Sichtbarkeit\n"
    "#define SCHR=0.25\n"
    "SCHR H6 0.25\n"
    "#define FILL=SENK\n#define FILLI=FLAE\n#define FILLC=SENK\n#define SCHRI=NEIN\n#define "
    "SCHRC=NEIN\n"
    "BEOB EGXY    $ Blick in die globale Z-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 33 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  33 DTYP QSCH $ Schnitt in "
    "X-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 66 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  66 DTYP QSCH $ Schnitt in "
    "X-Richtung\n"
    "MOVE UNIT PRWC X 33 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  33 Y 100 DTYP QSCH $ Schnitt in "
    "Y-Richtung\n"
    "MOVE UNIT PRWC X 66 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  66 Y 100 DTYP QSCH $ Schnitt in "
    "Y-Richtung\n"
    "SIZ2 TEIL BILD\n"
    "SIZE -URS M 100*1.e+10 TEIL  2x1 RAND NEIN FORM STAN\n"
    "a\nzuletzt\nENDE\n";

class TestOutputScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeScripts_data()
    {
        const Columns<Change, bool, bool, QString, QString> row("change", "english", "quads",
                                                                "additional", "expected");
        const auto frame = [](const char* cuts, const char* body) {
            return QString::fromLatin1(EnglishFrame).arg(QLatin1String(cuts), QLatin1String(body));
        };
        const auto prefix = [](OutputSettings& s) { s.variant = VKD_P_GraphicalOutput_Prefix; };
        row("defaults", Change([](OutputSettings&) {}), true, false, {}, frame("", "a\n"));
        row("areas", Change([](OutputSettings&) {}), true, true, "last",
            frame(EnglishCuts, "a\nlast\n"));
        row("prefix page", Change(prefix), true, false, "first ", frame("", "first a\n"));
        row("German, filled, scaled", Change([](OutputSettings& s) {
                s.fillAreas = true;
                s.fontSizeText = QStringLiteral("2.5");
                s.scaleMode = ScaleMode::Engineering;
                s.scaleIndex = 8;
                s.scaleText = QStringLiteral("1:100");
            }),
            false, true, "zuletzt", QString::fromLatin1(GermanFilled));
    }

    void wholeScripts()
    {
        QFETCH(Change, change);
        QFETCH(bool, english);
        QFETCH(QString, additional);
        QFETCH(QString, expected);
        QFETCH(bool, quads);
        m_texts.quads = quads;
        const std::vector<QString> lines{QStringLiteral("a")};
        QCOMPARE(plib::outputScript(settings(change), lines, additional, plib::keywordsIf(english),
                                    m_texts),
                 expected);
    }

    void noLines()
    {
        OutputSettings s;
        QCOMPARE(plib::outputScript(s, {}, QStringLiteral("text"), Keywords::English, m_texts),
                 QString());
        s.variant = VKD_P_GraphicalOutput_Prefix;
        QCOMPARE(plib::outputScript(s, {}, QStringLiteral("text"), Keywords::English, m_texts),
                 QString());
    }

    void views_data()
    {
        const Columns<int, bool, QString> columns("viewId", "english", "expected");
        const auto row = [&columns](int view, bool english, const char* line,
                                    const char* expected) {
            columns(line, view, english, expected);
        };
        row(3, false, "BEOB EG3 more", "BEOB EG3 more");
        row(0, false, "BEOB EG3", "BEOB TYP EGXY ; PERS INFI");
        row(1, true, "VIEW EG3", "VIEW TYPE EGXZ ; PERS INFI");
        row(2, true, "VIEW EG3 and more EG3", "VIEW TYPE EGYZ ; PERS INFI");
        row(4, true, "VIEW EG3", "VIEW TYPE STAN 1 2 3");
        row(-1, true, "VIEW EG3", "VIEW TYPE ");
        row(0, true, "VIEW EGX", "VIEW EGX");
        row(0, true, "VIEW eg3", "VIEW eg3");
        row(0, true, "EG3 at the very beginning, EG3", "EG3 at the very beginning, EG3");
    }

    /// The name of the data row is the expected line.
    void views()
    {
        QFETCH(int, viewId);
        QFETCH(bool, english);
        OutputSettings s;
        s.viewId = plib::OutputView(viewId);
        const std::vector<QString> lines{QString::fromLatin1(QTest::currentDataTag())};
        const QString script =
            plib::outputScript(s, lines, QString(), plib::keywordsIf(english), m_texts);
        QTEST(script.section(QLatin1Char('\n'), -3, -3), "expected");
    }

    void size_data()
    {
        const Columns<Change, QString> row("change", "english");
        const auto scaled = [](int index, const char* text) {
            return Change([=](OutputSettings& s) {
                s.formatId = plib::PageFormat::Landscape;
                s.scaleMode = ScaleMode::Engineering;
                s.scaleIndex = index;
                s.scaleText = QString::fromLatin1(text);
            });
        };
        const char* const fitted = "SIZE URS SC 0 MARG NO FORM STAN";
        row(
            "landscape has no division",
            [](OutputSettings& s) { s.formatId = plib::PageFormat::Landscape; }, fitted);
        row(
            "no format to choose", [](OutputSettings& s) { s.hasFormat = false; }, fitted);
        row(
            "a fitted scale hides the list",
            [](OutputSettings& s) { s.scaleIndex = 5, s.formatId = plib::PageFormat::Landscape; },
            fitted);
        row(
            "one per page", [](OutputSettings& s) { s.picturesId = plib::PagePictures::One; },
            "SIZE -URS SC 0 MARG NO FORM STAN");
        row("automatic scale", scaled(0, ""), "SIZE URS SC - MARG NO FORM STAN");
        row("no colon", scaled(3, "75"), "SIZE URS SC 75*1.e+10 MARG NO FORM STAN");
        row("the first colon counts", scaled(3, "1:2:3"),
            "SIZE URS SC 2:3*1.e+10 MARG NO FORM STAN");
    }

    void size()
    {
        QFETCH(Change, change);
        QFETCH(QString, english);
        QCOMPARE(plib::sizeStatement(settings(change), Keywords::English), english);
        const QString german = english.replace(QLatin1String(" SC "), QLatin1String(" M "))
                                   .replace(QLatin1String("MARG NO"), QLatin1String("RAND NEIN"));
        QCOMPARE(plib::sizeStatement(settings(change), Keywords::German), german);
    }

    void font()
    {
        const std::pair<const char*, const char*> sizes[] = {{"2", "0.2"},
                                                             {"2,5", "0"}, // not a number
                                                             {"", "0"},
                                                             {"12.3456789", "1.23457"},
                                                             {"1e8", "1e+07"}};
        for (const auto& [typed, expected] : sizes) {
            OutputSettings s;
            s.fontSizeText = QString::fromLatin1(typed);
            const QString number = QString::fromLatin1(expected);
            QCOMPARE(plib::fontStatement(s, Keywords::English), QLatin1String("SCHH H6 ") + number);
            QCOMPARE(plib::fontStatement(s, Keywords::German), QLatin1String("SCHR H6 ") + number);
            s.variant = VKD_P_GraphicalOutput_Split;
            QCOMPARE(plib::fontStatement(s, Keywords::English), number);
        }
    }

    void fontAsTyped()
    {
        compareCases([](const QString& typed) { return plib::fontSizeText(typed); },
                     "2 => 2\n2,5 => 2.5\n 2,50  => 2.50\n1 => 1\n999 => 999\n0.99 =>\n999,5 =>\n"
                     "-3 =>\nabc =>\n1.000,5 =>\n =>");
    }

    void split_data()
    {
        // scale: -1 means scale to fit
        const Columns<int, int, bool, QString, QString> columns("id", "scale", "english",
                                                                "additional", "expected");
        const auto row = [&columns](int id, int scale, bool english, const char* additional,
                                    const char* expected) {
            columns(expected, id, scale, english, additional, expected);
        };
        row(0, -1, true, "", "SIZE TYPE \"-URS\" SC 0 SPLI 1X1|SIZE TYPE \"-URS\" $(XYZ) SPLI 1X1");
        row(1, 8, false, "",
            "SIZE DINA \"-URS\" M 100 TEIL 2X1|SIZE DINA \"-URS\" $(XYZ) TEIL 2X1");
        row(2, 0, true, "", "SIZE TYPE \"-URS\" SC - SPLI 2X2|SIZE TYPE \"-URS\" $(XYZ) SPLI 2X2");
        row(3, -1, false, "x",
            "SIZE DINA \"-URS\" M 0 TEIL 3X2|SIZE DINA \"-URS\" $(XYZ) TEIL 3X2x\n");
        row(4, -1, true, "", "SIZE TYPE \"URS\" SC 0 SPLI 1X1|SIZE TYPE \"URS\" $(XYZ) SPLI 1X1");
        row(5, -1, true, "", "SIZE TYPE \"URS\" SC 0 SPLI 2X2|SIZE TYPE \"URS\" $(XYZ) SPLI 2X2");
        row(6, -1, true, "", "SIZE TYPESC 0 |SIZE TYPE$(XYZ) ");
        row(-1, 8, false, "", "SIZE DINAM 100 |SIZE DINA$(XYZ) ");
    }

    void split()
    {
        QFETCH(int, id);
        QFETCH(int, scale);
        QFETCH(bool, english);
        QFETCH(QString, additional);
        OutputSettings s;
        s.variant = VKD_P_GraphicalOutput_Split;
        s.pageSplitId = id;
        s.scaleMode = scale < 0 ? ScaleMode::ToFit : ScaleMode::Engineering;
        s.scaleIndex = qMax(scale, 0);
        s.scaleText = scale > 0 ? plib::engineeringScales()[scale - 1] : QString();
        for (const std::vector<QString>& lines : {std::vector<QString>(), {QStringLiteral("a")}})
            QTEST(plib::outputScript(s, lines, additional, plib::keywordsIf(english), m_texts),
                  "expected");
    }

private:
    FixedTexts m_texts;
};

PLIB_TEST_MAIN(TestOutputScript)
#include "tst_outputScript.moc"
