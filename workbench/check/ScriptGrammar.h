#pragma once

#include "check/scriptTokens.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace workbench {

/// The statements of a script in one keyword language: the keywords of each statement, the keywords
/// that may follow each other, and the number of values after each keyword. The grammar is derived
/// from examples of all lines that a script can contain, so it needs no list of keywords.
class ScriptGrammar
{
public:
    struct Word
    {
        int leastValues = -1; ///< -1 until an example has been read
        int mostValues = 0;
        QSet<QString> next; ///< keywords that may follow; contains "" if the statement may end
    };
    using Statement = QHash<QString, Word>;

    ScriptGrammar() = default;
    explicit ScriptGrammar(const QStringList& examples);

    bool isEmpty() const { return m_statements.isEmpty(); }
    /// Returns the statement that begins with a keyword, or null.
    const Statement* statement(QStringView keyword) const;
    /// Returns whether the word is a keyword of any statement or definition.
    bool isKeyword(QStringView word) const;
    /// Returns the keywords that a definition may have as its value, or null if the examples do not
    /// contain the definition.
    const QSet<QString>* definition(QStringView name) const;

private:
    void learnDefinition(QStringView line);
    void learnStatement(QStringView line, const ScriptToken* begin, const ScriptToken* end);

    QHash<QString, Statement> m_statements;
    QSet<QString> m_keywords;
    QHash<QString, QSet<QString>> m_definitions;
};

/// Returns whether a keyword begins the title line of a program block. This line may contain any
/// text.
bool isTitleStatement(QStringView keyword);
/// Returns whether a keyword begins a statement at the beginning or the end of a program block.
/// These statements are not part of a grammar.
bool isFrameStatement(QStringView keyword);

/// A line "#define NAME=VALUE".
struct ScriptDefinition
{
    QStringView name; ///< empty if the line does not have this form
    QStringView value;
};
ScriptDefinition scriptDefinition(QStringView line);

/// Returns a lookup key that shares the characters of `text` and must not outlive them.
inline QString lookupKey(QStringView text)
{
    return QString::fromRawData(text.data(), int(text.size()));
}

} // namespace workbench
