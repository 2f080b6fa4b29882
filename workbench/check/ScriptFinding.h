#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// A problem in a script: something that the project's graphical output cannot have generated.
struct ScriptFinding
{
    enum Problem {
        UnknownStatement,
        UnknownKeyword,
        OtherLanguage,
        WrongOrder,
        Incomplete,
        MissingValue,
        UnexpectedValue,
        OpenReference,
        Undefined,
        DefinedTwice,
        NotUsed,
        NoDefinition,
        UnknownLoadCase,
        OtherDesignCase,
        OutsideProgram,
        NoProgram,
        NoTitle,
        NoSetup,
        NoEnd
    };

    Problem problem;
    int line;   ///< line number, counted from 0
    int start;  ///< position of the first character in its line
    int length; ///< number of characters; 0 if something is missing
    QString text;
    QString before; ///< the keyword that `text` follows

    /// Returns the problem as a sentence, in the language of the desktop.
    QString sentence() const;
};

/// Returns "LINE:COLUMN: sentence", with both numbers counted from 1.
QString findingText(const ScriptFinding& finding);

} // namespace workbench
