#include "window/script/ScriptColours.h"

#include "check/ScriptGrammar.h"

#include <QPalette>

namespace workbench {

namespace {
// Hues. The link colour is not used: it is blue and unreadable in many dark palettes.
constexpr int Red = 0;
constexpr int Orange = 25;
constexpr int Yellow = 50;
constexpr int Blue = 222;
constexpr int Violet = 290;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

/// Returns a colour with this hue that is readable on the text background.
QColor readable(const QPalette& palette, int hue)
{
    return QColor::fromHsl(hue, 160, isDark(palette) ? 185 : 85);
}

QColor between(const QColor& a, const QColor& b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

bool isUpperCase(QStringView word)
{
    return word[0] >= QLatin1Char('A') && word[0] <= QLatin1Char('Z');
}

bool isKnown(QStringView word, bool isFirst, const ScriptGrammar* grammar)
{
    if (!grammar)
        return isUpperCase(word);
    if (isFirst && isFrameStatement(word))
        return true;
    return isFirst ? grammar->statement(word) != nullptr : grammar->isKeyword(word);
}
} // namespace

ScriptColours::ScriptColours(const QPalette& palette)
    : m_changed(palette.color(QPalette::Highlight))
    , m_removed(readable(palette, Red))
{
    m_statement.setForeground(readable(palette, Blue));
    m_statement.setFontWeight(QFont::Bold);
    m_keyword.setForeground(readable(palette, Blue));
    m_number.setForeground(readable(palette, Orange));
    m_definition.setForeground(readable(palette, Violet));
    m_comment.setForeground(between(palette.color(QPalette::Text), palette.color(QPalette::Base)));
    m_comment.setFontItalic(true);
    m_hit.setBackground(QColor::fromHsl(Yellow, 200, isDark(palette) ? 60 : 175));
    m_finding.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    m_finding.setUnderlineColor(m_removed);
    m_changed.setAlpha(60); // preserves the colours of the text
}

QVector<QTextLayout::FormatRange> ScriptColours::formats(const QString& line,
                                                         const ScriptGrammar* grammar) const
{
    QVector<QTextLayout::FormatRange> ranges;
    bool isFirst = true;
    bool isTitle = false;
    for (const ScriptToken& token : scriptTokens(line)) {
        const QStringView text = textOf(line, token);
        const QTextCharFormat* format = nullptr;
        switch (token.kind) {
        case ScriptToken::Word:
            if (!isTitle && isKnown(text, isFirst, grammar))
                format = isFirst ? &m_statement : &m_keyword;
            isTitle = isTitle || (isFirst && isTitleStatement(text));
            break;
        case ScriptToken::Value: format = isTitle ? nullptr : &m_number; break;
        case ScriptToken::Comment: format = &m_comment; break;
        case ScriptToken::Separator: break;
        default: format = &m_definition;
        }
        isFirst = token.kind == ScriptToken::Separator;
        if (format)
            ranges.append({token.start, token.length, *format});
    }
    return ranges;
}

} // namespace workbench
