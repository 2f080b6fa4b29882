#pragma once

#include <QStringView>
#include <QVarLengthArray>

namespace workbench {

/// A token in a line of a script. Spaces, quotes and brackets between tokens are skipped.
struct ScriptToken
{
    enum Kind {
        Word,
        Value,         ///< a number, a product of numbers, or "-"
        Reference,     ///< "$(NAME)"
        OpenReference, ///< a reference without its closing bracket
        Separator,     ///< ";" between two statements
        Definition,    ///< "#define NAME=VALUE", or any other line that begins with "#"
        Comment        ///< a dollar sign and the rest of the line
    };

    Kind kind;
    int start;
    int length;
};

using ScriptTokens = QVarLengthArray<ScriptToken, 24>;

ScriptTokens scriptTokens(QStringView line);

/// Returns the text of a token in its line. For a reference, this includes "$(" and ")".
inline QStringView textOf(QStringView line, const ScriptToken& token)
{
    return line.mid(token.start, token.length);
}

/// Returns whether a string is a number, a product of numbers, or "-".
bool isScriptValue(QStringView text);

} // namespace workbench
