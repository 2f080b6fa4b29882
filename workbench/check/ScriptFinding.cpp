#include "check/ScriptFinding.h"

#include <QCoreApplication>

namespace workbench {

namespace {
constexpr char Context[] = "workbench::ScriptFinding";

struct Sentence
{
    ScriptFinding::Problem problem;
    const char* text; ///< %1 is the text of the finding, %2 the keyword before it
};

constexpr Sentence Sentences[] = {
    {ScriptFinding::UnknownStatement,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "no plot produces a statement \"%1\"")},
    {ScriptFinding::UnknownKeyword,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is not a keyword of this statement")},
    {ScriptFinding::OtherLanguage,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is a keyword of the other language")},
    {ScriptFinding::WrongOrder,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "no plot has \"%1\" after \"%2\"")},
    {ScriptFinding::Incomplete,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "a keyword is missing after \"%2\"")},
    {ScriptFinding::MissingValue,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "a value is missing after \"%2\"")},
    {ScriptFinding::UnexpectedValue,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "no plot has the value \"%1\" after \"%2\"")},
    {ScriptFinding::OpenReference,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "the bracket of \"%1\" is not closed")},
    {ScriptFinding::Undefined,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is not defined")},
    {ScriptFinding::DefinedTwice,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is defined twice")},
    {ScriptFinding::NotUsed,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is defined but not used")},
    {ScriptFinding::NoDefinition,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "a definition has the form #define NAME=VALUE")},
    {ScriptFinding::UnknownLoadCase,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "the model has no load case %1")},
    {ScriptFinding::OtherDesignCase,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding",
                       "the design case %1 differs from the load case %2")},
    {ScriptFinding::OutsideProgram,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "\"%1\" is outside a program block")},
    {ScriptFinding::NoProgram,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "there is no program block")},
    {ScriptFinding::NoTitle,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "the program block has no title line")},
    {ScriptFinding::NoSetup,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "the program block has no page setup")},
    {ScriptFinding::NoEnd,
     QT_TRANSLATE_NOOP("workbench::ScriptFinding", "the program block has no end")},
};
} // namespace

QString ScriptFinding::sentence() const
{
    QString found;
    for (const Sentence& sentence : Sentences)
        if (sentence.problem == problem)
            found = QCoreApplication::translate(Context, sentence.text);
    const QLatin1String first("%1");
    const QLatin1String second("%2");
    if (found.contains(first))
        return found.contains(second) ? found.arg(text, before) : found.arg(text);
    return found.replace(second, before);
}

QString findingText(const ScriptFinding& finding)
{
    return QStringLiteral("%1:%2: ").arg(finding.line + 1).arg(finding.start + 1) +
           finding.sentence();
}

} // namespace workbench
