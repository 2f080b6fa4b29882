#include "catalogue/catalogueLint.h"

#include "catalogue/CatalogueLines.h"
#include "catalogue/CatalogueParser.h"
#include "catalogue/contentFilter.h"
#include "tree/selectionText.h"

#include <vkd_lib_text.h>

#include <QHash>
#include <QIODevice>
#include <QPair>

#include <array>
#include <set>

namespace plib {

namespace {
using Outcome = CatalogueParser::Outcome;

class CatalogueLint
{
public:
    void line(int number, const QByteArray& bytes, bool isCut);
    std::vector<CatalogueFinding> findings;
    std::vector<GraphicalOutputRecord> records;

private:
    void say(const QString& text) { findings.push_back({m_line, text}); }
    void checkBytes(const QByteArray& bytes);
    void checkScripts(Outcome outcome);
    void checkWords(const GraphicalOutputRecord& record);
    void checkVisibility(const GraphicalOutputRecord& record);
    void checkIdentifiers(const GraphicalOutputRecord& record);
    void checkPlotIdentifier(const GraphicalOutputRecord& record, int program);
    void checkCaption(const GraphicalOutputRecord& record, int program, int level,
                      const QString& caption);

    using OnPage = QPair<int, QString>; // kind of page, and identifier in the tree of such pages

    CatalogueParser m_parser;
    int m_line = 0;
    int m_englishLine = 0;                         // last line with an English script
    QHash<OnPage, std::array<int, 4>> m_plots;     // lines by kind of system
    QHash<OnPage, QPair<QString, int>> m_captions; // caption and line
};

void CatalogueLint::line(int number, const QByteArray& bytes, bool isCut)
{
    m_line = number;
    if (isCut)
        say(QStringLiteral("longer than %1 bytes: the rest is read as a separate line")
                .arg(bytes.size()));
    const Outcome outcome = m_parser.parseLine(bytes.constData(), bytes.size());
    if (outcome == Outcome::Comment || outcome == Outcome::Blank)
        return;
    checkBytes(bytes);
    checkScripts(outcome);
    if (outcome != Outcome::Accepted)
        return;
    const GraphicalOutputRecord& record = m_parser.record();
    checkWords(record);
    checkVisibility(record);
    checkIdentifiers(record);
    records.push_back(record);
}

void CatalogueLint::checkBytes(const QByteArray& bytes)
{
    if (bytes.startsWith('|') || bytes.contains("||"))
        say(QStringLiteral("adjacent bars count as one: the following columns are shifted"));
}

void CatalogueLint::checkScripts(Outcome outcome)
{
    const int parts = m_parser.partCount();
    if (outcome == Outcome::TooFewParts)
        say(QStringLiteral("dropped: %1 columns, %2 are required")
                .arg(parts)
                .arg(CatalogueParser::UsedParts));
    else if (outcome == Outcome::NoGermanScript)
        say(QStringLiteral("dropped: the German script line is blank"));
    else if (outcome == Outcome::NoEnglishScript)
        say(QStringLiteral("dropped: the English script line is blank"));
    else if (parts == CatalogueParser::MinimumParts)
        say(QStringLiteral("no English script line: the one in line %1 is used")
                .arg(m_englishLine));
    if (parts > CatalogueParser::MinimumParts)
        m_englishLine = m_line;
}

void CatalogueLint::checkWords(const GraphicalOutputRecord& record)
{
    if (!record.contentTag.isEmpty() && !contentOf(record.contentTag))
        say(QStringLiteral("unknown content tag \"%1\": the plot is shown for every model")
                .arg(record.contentTag));
    if (record.caseWord.isEmpty())
        return;
    if (record.ctrl == CtrlStandsAlone)
        say(QStringLiteral("unknown case word \"%1\": the plot has no load cases")
                .arg(record.caseWord));
    else if (record.rowClass == 0)
        say(QStringLiteral("\"%1\" does not end in -l, -c or -e: the plot never produces a line")
                .arg(record.caseWord));
}

void CatalogueLint::checkVisibility(const GraphicalOutputRecord& record)
{
    if (record.title1.isEmpty() || record.title2.isEmpty() || record.title3.isEmpty())
        say(QStringLiteral("never shown: a caption is empty"));
    if (record.prog1 <= 0 && record.prog2 <= 0 && record.prog3 <= 0)
        say(QStringLiteral("never shown: no kind of page is specified"));
    if (record.title3 == record.title2)
        say(QStringLiteral(
                "the plot is called \"%1\" like the level above: later plots are added below it")
                .arg(record.title3));
}

void CatalogueLint::checkIdentifiers(const GraphicalOutputRecord& record)
{
    const QString id = itemId(record, 2);
    if (id.contains(QLatin1Char(':')))
        say(QStringLiteral("colon in the identifier \"%1\": the choice cannot be stored").arg(id));
    const std::set<int> programs{record.prog1, record.prog2, record.prog3};
    const size_t before = findings.size();
    for (int program : programs) {
        if (program <= 0 || findings.size() != before) // report once, not for each kind of page
            continue;
        checkCaption(record, program, 0, record.title1);
        checkCaption(record, program, 1, record.title2);
        checkPlotIdentifier(record, program);
    }
}

/// Plots for different kinds of system may share an identifier: a tree shows only one of these
/// plots, so a stored selection is unambiguous.
void CatalogueLint::checkPlotIdentifier(const GraphicalOutputRecord& record, int program)
{
    std::array<int, 4>& lines = m_plots[{program, itemId(record, 2)}];
    const int mask = record.systemMask & 15 ? record.systemMask & 15 : 15;
    int sharedWith = 0;
    for (size_t bit = 0; bit < lines.size(); ++bit) {
        if (!(mask & (1 << bit)))
            continue;
        if (lines[bit])
            sharedWith = lines[bit];
        else
            lines[bit] = m_line;
    }
    if (sharedWith)
        say(QStringLiteral("identifier \"%1\" shared with the plot of line %2")
                .arg(itemId(record, 2), QString::number(sharedWith)));
}

void CatalogueLint::checkCaption(const GraphicalOutputRecord& record, int program, int level,
                                 const QString& caption)
{
    const QString id = itemId(record, level);
    auto& known = m_captions[{program, id}];
    if (known.second == 0)
        known = {caption, m_line};
    else if (known.first != caption)
        say(QStringLiteral("identifier \"%1\" stands for \"%2\" here and for \"%3\" in line %4")
                .arg(id, caption, known.first, QString::number(known.second)));
}
} // namespace

std::vector<CatalogueFinding> lintCatalogue(QIODevice& device,
                                            std::vector<GraphicalOutputRecord>* records)
{
    vkd_lib_opentext("grav");
    CatalogueLint lint;
    CatalogueLines lines(device);
    for (int number = 1; lines.next(); number += lines.isWhole())
        lint.line(number, QByteArray::fromRawData(lines.bytes(), lines.length()), !lines.isWhole());
    if (records)
        *records = std::move(lint.records);
    return std::move(lint.findings);
}

} // namespace plib
