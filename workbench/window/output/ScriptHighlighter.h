#pragma once

#include <QSyntaxHighlighter>

class QPalette;

namespace workbench {

/// Colours of a script: statements, keywords, numbers, definitions and comments. German and English
/// keywords are recognised by their form: they are short and in capitals.
class ScriptHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    ScriptHighlighter(QTextDocument* document, const QPalette& palette);

    /// Updates the colours after the desktop has changed between light and dark.
    void setColours(const QPalette& palette);

protected:
    void highlightBlock(const QString& text) override;

private:
    QTextCharFormat m_statement;
    QTextCharFormat m_keyword;
    QTextCharFormat m_number;
    QTextCharFormat m_definition;
    QTextCharFormat m_comment;
};

} // namespace workbench
