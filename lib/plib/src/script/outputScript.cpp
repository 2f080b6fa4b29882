#include "script/outputScript.h"

#include "script/Words.h"

#include <iterator>

namespace plib {

namespace {
constexpr Words FontWords{"SCHR H6 ", "SCHH H6 "};
constexpr Words TypeWord{"TYP ", "TYPE "};
constexpr Words TwoPictures{"SIZ2 TEIL BILD\n", "SIZ2 SPLI PICT\n"};
constexpr Words TwoByOne{" TEIL  2x1", " SPLI  2x1"};
constexpr Words ScaleWord{" M ", " SC "};
constexpr Words Margin{" RAND NEIN FORM STAN", " MARG NO FORM STAN"};
constexpr Words SplitKind{"DINA", "TYPE"};
constexpr Words SplitScale{"M", "SC"};
constexpr Words SplitDivision{"TEIL", "SPLI"};

constexpr Words FillOff{"#define FILL=-\n#define FILLI=-\n#define FILLC=-\n"
                        "#define SCHRI=-\n#define SCHRC=-\n",
                        "#define FILL=-\n#define FILLI=-\n#define FILLC=-\n"
                        "#define SCHRI=-\n#define SCHRC=-\n"};
constexpr Words FillOn{"#define FILL=SENK\n#define FILLI=FLAE\n#define FILLC=SENK\n"
                       "#define SCHRI=NEIN\n#define SCHRC=NEIN\n",
                       "#define FILL=VERT\n#define FILLI=AREA\n#define FILLC=VERT\n"
                       "#define SCHRI=NO\n#define SCHRC=NO\n"};

constexpr Words ControlLines{
    "STEU LEER JA          $ leere Bilder erzeugen, wenn angeforderte Ergebnisse nicht darstellbar "
    "sind\n"
    "STEU WARN (800 802 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN (804 808 1) $ keine Warnungen, wenn angeforderte Ergebnisse nicht darstellbar sind\n"
    "STEU WARN 873         $ keine Warnung wegen 2D Sichtbarkeit\n",
    "CTRL EMPT YES         $ create empty pages if results not available\n"
    "CTRL WARN (800 802 1) $ no warnings if no values found\n"
    "CTRL WARN (804 808 1) $ no warnings if no values found\n"
    "CTRL WARN 873         $ no warning for 2D visibility\n"};

/// Two section lines across the page for each global direction.
constexpr Words CutLines{
    "BEOB EGXY    $ Blick in die globale Z-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 33 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  33 DTYP QSCH $ Schnitt in "
    "X-Richtung\n"
    "MOVE UNIT PRWC X  0 Y 66 DTYP QSCH ; DRAW UNIT PRWC X 100 Y  66 DTYP QSCH $ Schnitt in "
    "X-Richtung\n"
    "MOVE UNIT PRWC X 33 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  33 Y 100 DTYP QSCH $ Schnitt in "
    "Y-Richtung\n"
    "MOVE UNIT PRWC X 66 Y  0 DTYP QSCH ; DRAW UNIT PRWC X  66 Y 100 DTYP QSCH $ Schnitt in "
    "Y-Richtung\n",
    "VIEW EGXY    $ view in global Z direction\n"
    "MOVE UNIT PRWC X  0 Y 33 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  33 DTYP QSEC $ cut in global X "
    "direction\n"
    "MOVE UNIT PRWC X  0 Y 66 DTYP QSEC ; DRAW UNIT PRWC X 100 Y  66 DTYP QSEC $ cut in global X "
    "direction\n"
    "MOVE UNIT PRWC X 33 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  33 Y 100 DTYP QSEC $ cut in global Y "
    "direction\n"
    "MOVE UNIT PRWC X 66 Y  0 DTYP QSEC ; DRAW UNIT PRWC X  66 Y 100 DTYP QSEC $ cut in global Y "
    "direction\n"};

constexpr struct
{
    const char* division;
    const char* sheet;
} PageSplits[] = {{" 1X1", " \"-URS\" "}, {" 2X1", " \"-URS\" "}, {" 2X2", " \"-URS\" "},
                  {" 3X2", " \"-URS\" "}, {" 1X1", " \"URS\" "},  {" 2X2", " \"URS\" "}};
static_assert(std::size(PageSplits) == PageSplitCount);

/// Returns the font size in centimetres. Text that is not a number is read as 0.
QString fontNumber(const OutputSettings& settings)
{
    return QString::number(settings.fontSizeText.toDouble() / 10.0, 'g', 6);
}

QString scaleValue(const OutputSettings& settings)
{
    if (settings.scaleMode != ScaleMode::Engineering)
        return QStringLiteral("0");
    if (settings.scaleIndex == AutoScaleRow)
        return QStringLiteral("-");
    // The factor is intentionally appended as text, because the graphics program performs the
    // multiplication.
    return settings.scaleText.mid(settings.scaleText.indexOf(QLatin1Char(':')) + 1) +
           QLatin1String("*1.e+10");
}

/// Returns the scale for the split variant, in which no factor is appended.
QString splitScaleValue(const OutputSettings& settings)
{
    if (settings.scaleMode != ScaleMode::Engineering)
        return QStringLiteral(" 0");
    if (settings.scaleIndex == AutoScaleRow)
        return QStringLiteral(" -");
    return QLatin1Char(' ') + QString(settings.scaleText).remove(QLatin1String("1:"));
}

QString splitResult(const OutputSettings& settings, const QString& additional, Keywords keywords)
{
    QString kind = SplitKind.in(keywords);
    QString division;
    if (settings.pageSplitId >= 0 && settings.pageSplitId < PageSplitCount) {
        const auto& split = PageSplits[settings.pageSplitId];
        kind += QLatin1String(split.sheet);
        division = SplitDivision.in(keywords) + QLatin1String(split.division);
    }
    const QString scale = SplitScale.in(keywords) + splitScaleValue(settings);
    // $(XYZ) is plain text here; the host expands it.
    QString result = QLatin1String("SIZE ") + kind + scale + QLatin1Char(' ') + division +
                     QLatin1String("|SIZE ") + kind + QLatin1String("$(XYZ) ") + division;
    if (!additional.isEmpty())
        result += additional + QLatin1Char('\n');
    return result;
}

/// Appends the lines, in which it replaces the standard view with the view of the page. Reserves
/// memory for the lines and the rest of the script, because scripts may be long.
void appendBody(QString* script, const std::vector<QString>& lines, OutputView page,
                const QString& clause, int rest)
{
    int size = script->size() + rest;
    for (const QString& line : lines)
        size += line.size() + clause.size() + 1;
    script->reserve(size);
    for (const QString& line : lines) {
        const int view = page == OutputView::Standard3D ? -1 : line.indexOf(QLatin1String("EG3"));
        if (view > 0) // the rest of the line is also replaced
            script->append(line.constData(), view).append(clause);
        else
            *script += line;
        *script += QLatin1Char('\n');
    }
}
} // namespace

QString fontStatement(const OutputSettings& settings, Keywords keywords)
{
    const QString number = fontNumber(settings);
    return settings.variant == VKD_P_GraphicalOutput_Split ? number
                                                           : FontWords.in(keywords) + number;
}

QString viewClause(const OutputSettings& settings, Keywords keywords,
                   const ScriptEnvironment& environment)
{
    QString type = TypeWord.in(keywords);
    switch (settings.viewId) {
    case OutputView::PlaneXY: return type + QLatin1String("EGXY ; PERS INFI");
    case OutputView::PlaneXZ: return type + QLatin1String("EGXZ ; PERS INFI");
    case OutputView::PlaneYZ: return type + QLatin1String("EGYZ ; PERS INFI");
    case OutputView::Standard3D: return type + QLatin1String("EG3");
    case OutputView::UserDefined: return type + QLatin1String("STAN ") + environment.camera();
    default: return type;
    }
}

QString sizeStatement(const OutputSettings& settings, Keywords keywords)
{
    const bool portrait = settings.hasFormat && settings.formatId == PageFormat::Portrait;
    const bool two = hasTwoPictures(settings);
    return (two ? TwoPictures.in(keywords) : QString()) + QLatin1String("SIZE ") +
           QLatin1String(portrait ? "-URS" : "URS") + ScaleWord.in(keywords) +
           scaleValue(settings) + (two ? TwoByOne.in(keywords) : QString()) + Margin.in(keywords);
}

QString fillDefinitions(bool fill, Keywords keywords)
{
    return (fill ? FillOn : FillOff).in(keywords);
}

QString outputScript(const OutputSettings& settings, const std::vector<QString>& lines,
                     const QString& additional, Keywords keywords,
                     const ScriptEnvironment& environment, int* linesBefore)
{
    if (settings.variant == VKD_P_GraphicalOutput_Split)
        return splitResult(settings, additional, keywords);
    if (lines.empty())
        return QString();
    const bool ahead = settings.variant == VKD_P_GraphicalOutput_Prefix;
    const QLatin1Char end('\n');
    QString script = environment.programHead() + ControlLines.in(keywords) +
                     QLatin1String("#define SCHR=") + fontNumber(settings) + end +
                     fontStatement(settings, keywords) + end +
                     fillDefinitions(settings.fillAreas, keywords);
    if (environment.hasQuads())
        script += CutLines.in(keywords);
    script += sizeStatement(settings, keywords) + end;
    if (ahead) // includes a newline
        script += additional;
    if (linesBefore)
        *linesBefore = script.count(end);
    QString tail = environment.programEnd(keywords) + end;
    if (!ahead && !additional.isEmpty())
        tail.prepend(additional + end);
    appendBody(&script, lines, settings.viewId, viewClause(settings, keywords, environment),
               tail.size());
    return script += tail;
}

} // namespace plib
