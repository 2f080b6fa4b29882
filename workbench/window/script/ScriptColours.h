#pragma once

#include <QTextLayout>

class QPalette;

namespace workbench {

/// Highlights statements, keywords, numbers, definitions and comments of a script. German and
/// English keywords are recognised by their form: they are short and in upper case.
class ScriptColours
{
public:
    /// The colours are readable on the text background of this palette.
    explicit ScriptColours(const QPalette& palette);

    /// Returns the formats for the parts of a line.
    QVector<QTextLayout::FormatRange> formats(const QString& line) const;
    /// Returns the background for changed lines.
    const QColor& changed() const { return m_changed; }

private:
    QTextCharFormat m_statement;
    QTextCharFormat m_keyword;
    QTextCharFormat m_number;
    QTextCharFormat m_definition;
    QTextCharFormat m_comment;
    QColor m_changed;
};

} // namespace workbench
