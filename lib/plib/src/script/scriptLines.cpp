#include "script/scriptLines.h"

#include "script/Words.h"

namespace plib {

namespace {
constexpr Words ViewWord{"BEOB ", "VIEW "};
constexpr Words LcWord{"LF ", "LC "};
constexpr Words DesignWord{" BEME ", " DESI "};
constexpr Words AndWord{" ; UND ", " ; AND "};
constexpr Words FirstColour{"FARB F14 -1 ; ", "COLO C14 -1 ; "};
constexpr Words SecondColour{"FARB STAN ; FARB F13 -1 ; ", "COLO STAN ; COLO C13 -1 ; "};
constexpr Words ColourEnd{" ; FARB STAN", " ; COLO STAN"};
} // namespace

ScriptContext scriptContext(Keywords keywords)
{
    ScriptContext context;
    context.viewWord = ViewWord.in(keywords);
    context.lcWord = LcWord.in(keywords);
    context.designWord = DesignWord.in(keywords);
    context.andWord = AndWord.in(keywords);
    context.firstColour = FirstColour.in(keywords);
    context.secondColour = SecondColour.in(keywords);
    context.colourEnd = ColourEnd.in(keywords);
    return context;
}

ScriptLineWriter::ScriptLineWriter(std::vector<QString>& lines, Keywords keywords, int progname,
                                   KindOfSystem kindOfSystem)
    : m_lines(lines)
    , m_keywords(keywords)
    , m_progname(progname)
    , m_askKind(std::move(kindOfSystem))
    , m_context(scriptContext(keywords))
{
}

const QString& ScriptLineWriter::script(const GraphicalOutputRecord& record) const
{
    return m_keywords == Keywords::English ? record.scriptEnglish : record.scriptGerman;
}

QLatin1String ScriptLineWriter::viewName(int viewKind)
{
    if (viewKind == 1 && !m_kindKnown) {
        m_isSpatial = m_askKind() == 0;
        m_kindKnown = true;
    }
    if (viewKind == 3 || (viewKind == 1 && m_isSpatial))
        return QLatin1String("EG3");
    return viewKind == 1 || viewKind == 2 ? QLatin1String("EGX") : QLatin1String();
}

void ScriptLineWriter::writeView(int viewKind)
{
    const QLatin1String view = viewName(viewKind);
    if (m_context.lastView == view)
        return;
    m_context.lastView = view;
    // If a plot without a view follows a plot with a view, only the keyword and a space are
    // written. This resets the view.
    m_lines.push_back(m_context.viewWord + view);
}

void ScriptLineWriter::writeSplit(int number, QString text)
{
    constexpr qint64 CaseOffset = 1000000; // 64 bits: the sum must not overflow
    text.replace(QLatin1String("$(LFNR)"), QString::number(CaseOffset + number));
    m_lines.push_back(text);
}

QString ScriptLineWriter::caseLine(int number) const
{
    const QString digits = QString::number(number);
    QString line;
    line.reserve(m_context.lcWord.size() + m_context.designWord.size() + 2 * digits.size());
    line += m_context.lcWord;
    line += digits;
    line += m_context.designWord;
    line += digits;
    return line;
}

void ScriptLineWriter::writeCaseLine(int number)
{
    if (number == m_context.lastCase)
        return;
    m_context.lastCase = number;
    m_lines.push_back(caseLine(number));
}

/// Writes the plot for two load cases in one picture, each in its own colour. Afterwards, the
/// second load case is the current load case.
void ScriptLineWriter::writeDouble(int second, const QString& text,
                                   const GraphicalOutputRecord* above)
{
    const bool hasUnit = above && script(*above).contains(QLatin1String("UNIT"));
    const QLatin1String unit(hasUnit ? "" : " UNIT LAST");
    m_lines.push_back(m_context.firstColour + text + m_context.andWord);
    m_lines.push_back(caseLine(second));
    m_lines.push_back(m_context.secondColour + text + unit + m_context.colourEnd);
    m_context.lastCase = second;
}

} // namespace plib
