#pragma once

#include <QTextLayout>

class QPalette;

namespace workbench {

class ScriptGrammar;

/// Highlights statements, keywords, numbers, definitions and comments in a script, and provides the
/// colours of marks. A word is highlighted as a keyword only if the grammar contains it.
class ScriptColours
{
public:
    /// The colours are readable on the text background of this palette.
    explicit ScriptColours(const QPalette& palette);

    /// Returns the formats for the parts of a line. Without a grammar, all words in upper case are
    /// highlighted.
    QVector<QTextLayout::FormatRange> formats(const QString& line,
                                              const ScriptGrammar* grammar) const;
    /// Returns the background for changed lines.
    const QColor& changed() const { return m_changed; }
    /// Returns the colour of the marks that show where lines were removed.
    const QColor& removed() const { return m_removed; }
    /// Returns the format of words that were found.
    const QTextCharFormat& hit() const { return m_hit; }
    /// Returns the format of findings.
    const QTextCharFormat& finding() const { return m_finding; }

private:
    QTextCharFormat m_statement;
    QTextCharFormat m_keyword;
    QTextCharFormat m_number;
    QTextCharFormat m_definition;
    QTextCharFormat m_comment;
    QTextCharFormat m_hit;
    QTextCharFormat m_finding;
    QColor m_changed;
    QColor m_removed;
};

} // namespace workbench
