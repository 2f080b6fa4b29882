#include "window/script/ScriptColours.h"

#include <QPalette>
#include <QRegularExpression>

namespace workbench {

namespace {
// Hues. The link colour is not used: it is blue and unreadable in many dark palettes.
constexpr int Orange = 25;
constexpr int Blue = 222;
constexpr int Violet = 290;

/// Returns a colour with this hue that is readable on the text background.
QColor readable(const QPalette& palette, int hue)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return QColor::fromHsl(hue, 160, isDark ? 185 : 85);
}

QColor between(const QColor& a, const QColor& b)
{
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

/// A dollar sign begins a comment, except before a bracket, where it begins a reference.
int commentStart(const QString& text)
{
    int at = text.indexOf(QLatin1Char('$'));
    while (at >= 0 && text.mid(at + 1, 1) == QLatin1String("("))
        at = text.indexOf(QLatin1Char('$'), at + 1);
    return at < 0 ? text.size() : at;
}
} // namespace

ScriptColours::ScriptColours(const QPalette& palette)
    : m_changed(palette.color(QPalette::Highlight))
{
    m_statement.setForeground(readable(palette, Blue));
    m_statement.setFontWeight(QFont::Bold);
    m_keyword.setForeground(readable(palette, Blue));
    m_number.setForeground(readable(palette, Orange));
    m_definition.setForeground(readable(palette, Violet));
    m_comment.setForeground(between(palette.color(QPalette::Text), palette.color(QPalette::Base)));
    m_comment.setFontItalic(true);
    m_changed.setAlpha(60); // preserves the colours of the text
}

QVector<QTextLayout::FormatRange> ScriptColours::formats(const QString& line) const
{
    static const QRegularExpression token(
        QStringLiteral("(?<reference>\\$\\([^)]*\\))|(?<number>(?<![A-Za-z0-9])[-+]?\\d[\\d.]*"
                       "(?:[eE][-+]?\\d+)?(?![A-Za-z]))|(?<word>[A-Z][A-Z0-9]{0,4}(?![a-z\\w]))|"
                       "(?<separator>;)"));
    const int comment = commentStart(line);
    const QTextLayout::FormatRange rest{comment, line.size() - comment, m_comment};
    if (line.startsWith(QLatin1Char('#')))
        return {{0, comment, m_definition}, rest};
    QVector<QTextLayout::FormatRange> ranges{rest};
    bool isFirstWord = true;
    for (auto found = token.globalMatch(line.left(comment)); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QTextCharFormat* format = &m_keyword;
        if (match.capturedStart(QStringLiteral("reference")) >= 0)
            format = &m_definition;
        else if (match.capturedStart(QStringLiteral("number")) >= 0)
            format = &m_number;
        else if (isFirstWord && match.capturedStart(QStringLiteral("word")) >= 0)
            format = &m_statement;
        isFirstWord = match.capturedStart(QStringLiteral("separator")) >= 0;
        if (!isFirstWord)
            ranges.append({match.capturedStart(), match.capturedLength(), *format});
    }
    return ranges;
}

} // namespace workbench
