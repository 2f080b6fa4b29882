#include "CatalogueTestSupport.h"
#include "check/ScriptCheck.h"
#include "TestSupport.h"

#include <catalogue/Catalogue.h>
#include <script/outputScript.h>
#include <script/possibleLines.h>
#include <script/scriptLines.h>

using namespace workbench;
using vkd::Language;

namespace {
class Frame : public plib::ScriptEnvironment
{
public:
    QString programHead() const override
    {
        return QStringLiteral("PROG GRAV $ Any; $(TEXT)\nHEAD any; text $(TEXT)\n");
    }
    QString programEnd(plib::Keywords keywords) const override
    {
        return QLatin1String(keywords == plib::Keywords::German ? "ENDE" : "END");
    }
    bool hasQuads() const override { return true; }
    QString camera() const override { return QStringLiteral("1 -2.5 1e-05 ROTA -7"); }
};

const testsupport::Records& catalogue()
{
    static plib::Catalogue all;
    if (!plib::loadCatalogue(all, Language::English, [](const QString&, const QString&) {}))
        qFatal("no catalogue");
    return all.list;
}

const ScriptGrammars& grammars()
{
    static const ScriptGrammars both{
        ScriptGrammar(plib::possibleLines(catalogue(), plib::Keywords::German)),
        ScriptGrammar(plib::possibleLines(catalogue(), plib::Keywords::English))};
    return both;
}

/// Returns the script of all plots with load cases 1 to 3, two of which share a picture.
QString scriptOfAll(Language language, const plib::OutputSettings& settings = {})
{
    testsupport::Records records;
    for (plib::GraphicalOutputRecord record : catalogue())
        if (record.prog1 != VKD_P_GraphicalOutput_Split) {
            record.preselect = 2; // checks all rows
            records.push_back(record);
        }
    plib::OutputNode root;
    testsupport::build(&root, records,
                       {{1, 1, QStringLiteral("1 : a")},
                        {1, 2, QStringLiteral("2+3: b")},
                        {2, 3, QStringLiteral("3 : c")}});
    std::vector<QString> lines;
    const auto keywords = plib::Keywords(int(language));
    plib::collectScriptLines(&root, lines, keywords, settings.variant, [] { return 0; });
    return plib::outputScript(settings, lines, QString(), keywords, Frame());
}

QString check(const QString& script, Language language)
{
    QString text;
    for (const auto& finding : checkScript(script, grammars(), language, QSet<int>{1, 2, 3}))
        text += findingText(finding) + QLatin1Char('\n');
    return text;
}

/// Returns the matches of a pattern in the script, except those in comments and titles.
QVector<QRegularExpressionMatch> matches(const QString& script, const char* pattern)
{
    static const QRegularExpression noCode(
        QStringLiteral("\\$(?!\\().*|\\nHEAD.*|PROG.*|\\nKOPF.*"));
    QString code = script;
    for (auto found = noCode.globalMatch(script); found.hasNext();) {
        const auto match = found.next();
        code.replace(match.capturedStart(), match.capturedLength(),
                     QString(match.capturedLength(), QLatin1Char(' ')));
    }
    QVector<QRegularExpressionMatch> all;
    for (auto found = QRegularExpression(QLatin1String(pattern)).globalMatch(code);
         found.hasNext();)
        all.append(found.next());
    return all;
}
} // namespace

class tst_scriptCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownScripts_data()
    {
        const Columns<int, int, bool> row("language", "view", "others");
        for (int i = 0; i < 10; ++i)
            row(QByteArray::number(i).constData(), i % 2, i / 2, i % 3 == 1);
    }

    /// A generated script has no findings, whatever the settings of the page, and its language is
    /// recognised.
    void ownScripts()
    {
        QFETCH(const int, language);
        QFETCH(const int, view);
        QFETCH(const bool, others);
        plib::OutputSettings settings;
        settings.viewId = plib::OutputView(view);
        settings.fillAreas = others;
        if (others)
            plib::chooseScale(1 + view, &settings);
        plib::chooseFormat(plib::PageFormat(int(others)), &settings);
        const QString script = scriptOfAll(Language(language), settings);
        QVERIFY(script.contains(QLatin1String("UNIT LAST")));
        QCOMPARE(check(script, Language(language)), QString());
        QCOMPARE(int(likelyKeywords(script, grammars())), language);
        QVERIFY(!check(script, Language(1 - language)).isEmpty());
    }

    void mutations_data()
    {
        const Columns<QString, QString, int> row("pattern", "replacement", "most");
        row("letter of a word", "(?<=[A-Z])[A-Z](?=[ A-Z])", "q", 0);
        row("word", "(?<=[A-Z] )[A-Z]+[0-9]*(?=\\s)", "", 2);
        row("value", "(?<=[A-Z] )(\\$\\(\\w+\\)|-?[0-9][^ \n]*|-(?= ))", "", 2);
        row("name", "(?<=\\$\\()\\w+", "SCHQ", 0);
        row("bracket", "(?<=[A-Z])\\)", "", 0);
        row("load case", "(?<=DESI |BEME )[123]", "4", 0);
        row("definition", "(?<=#define )(SCHR|FILLI?)=", "X=", 0);
        row("frame", "PROG.*|(HEAD|KOPF|SIZE|ENDE?\\b).*\n", "", 0);
        row("separator", " ;", "", 0);
    }

    /// A mutation is missed only if the resulting line is one that a plot can generate.
    void mutations()
    {
        QFETCH(const QString, pattern);
        QFETCH(const QString, replacement);
        std::mt19937 random(11);
        int missed = 0;
        for (Language language : {Language::German, Language::English}) {
            const QString script = scriptOfAll(language);
            const auto places = matches(script, pattern.toLatin1().constData());
            QVERIFY(!places.isEmpty());
            for (int round = 0; round < 20; ++round) {
                const auto& place = places[testsupport::below(random, places.size())];
                QString mutant = script;
                mutant.replace(place.capturedStart(), place.capturedLength(), replacement);
                missed += check(mutant, language).isEmpty();
            }
        }
        QFETCH(const int, most);
        QVERIFY2(missed <= most, qPrintable(QString::number(missed)));
    }

    void findings_data()
    {
        const Columns<QString, QString, QString> row("part", "instead", "findings");
        row("statement", "QUAD MXX", "QUAT MXX", "1: no plot produces a statement \"QUAT\"\n");
        row("keyword", "QUAD MXX", "QUAD MXZ", "6: \"MXZ\" is not a keyword of this statement\n");
        row("other language", "QUAD MXX", "KNOT ; STEU LEER",
            "1: \"KNOT\" is a keyword of the other language\n"
            "8: \"STEU\" is a keyword of the other language\n");
        row("order", "QUAD MXX FILL", "QUAD FILL", "6: no plot has \"FILL\" after \"QUAD\"\n");
        row("incomplete", "VIEW EG3", "VIEW TYPE", "10: a keyword is missing after \"TYPE\"\n");
        row("value", "WARN 873 ", "WARN     ", "10: a value is missing after \"WARN\"\n");
        row("number", "WARN 873 ", "WARN -9.e+19 ", "");
        row("no exponent", "WARN 873 ", "WARN 9e$x ",
            "10: a value is missing after \"WARN\"\n"
            "11: \"9e\" is not a keyword of this statement\n");
        row("no digit", "WARN 873 ", "WARN -.e1 ",
            "10: a value is missing after \"WARN\"\n"
            "11: \"-.e1\" is not a keyword of this statement\n");
        row("values", "WARN 873 ", "WARN 1 2 3 4",
            "17: no plot has the value \"4\" after \"WARN\"\n");
        row("reference", "FILL $(FILL)", "FILL $(FILL",
            "16: the bracket of \"$(FILL\" is not closed\n");
        row("two definitions", "#define FILLI", "#define FILL", "9: \"FILL\" is defined twice\n");
        row("own definition", "#define FILL=-\n", "#define FILL=-\n#define OWN=7\n",
            "9: \"OWN\" is defined but not used\n");
        row("value of a definition", "#define FILLC=-", "#define FILLC=SENK",
            "15: \"SENK\" is a keyword of the other language\n");
        row("no definition", "#define FILLC=-", "#define SCHRC",
            "1: a definition has the form #define NAME=VALUE\n");
        row("load case", "LC 1 DESI 1", "LC 01 DESI 3",
            "12: the design case 3 differs from the load case 01\n");
        row("title", "HEAD any", "CTRL EMPT YES $", "1: the program block has no title line\n");
        row("page setup", "SIZE ", "$ ", "1: the program block has no page setup\n");
        row("two programs", "CTRL ", "PROG B\nHEAD c\nCTRL ", "1: the program block has no end\n");
        row("end", "\nEND\n", "\nEND\nQUAD NUMM\n", "1: \"QUAD\" is outside a program block\n");
        row("carriage return", "END\n", "END\r\n", "");
    }

    void findings()
    {
        QFETCH(const QString, part);
        QFETCH(const QString, instead);
        QString script = scriptOfAll(Language::English);
        const int at = script.indexOf(part);
        QVERIFY(at >= 0);
        QString found = check(script.replace(at, part.size(), instead), Language::English);
        const QRegularExpression lineNumbers(QStringLiteral("^\\d+:"),
                                             QRegularExpression::MultilineOption);
        QFETCH(const QString, findings);
        found.remove(lineNumbers);
        QVERIFY2(findings.isEmpty() ? found.isEmpty() : found.startsWith(findings),
                 qPrintable(found.left(1000)));
    }
};

PLIB_TEST_MAIN(tst_scriptCheck)
#include "tst_scriptCheck.moc"
