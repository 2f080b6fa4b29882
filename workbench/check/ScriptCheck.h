#pragma once

#include "check/ScriptFinding.h"
#include "check/ScriptGrammar.h"

#include <vkd_language.h>

#include <optional>

namespace workbench {

/// The grammars of both keyword languages.
struct ScriptGrammars
{
    ScriptGrammar german;
    ScriptGrammar english;

    const ScriptGrammar& of(vkd::Language keywords) const
    {
        return keywords == vkd::Language::German ? german : english;
    }
};

/// Checks a script line by line: the beginning, the end and the page setup of its program blocks,
/// statements and keywords, values, definitions and load cases. It accepts only what the graphical
/// output can generate, so it may report findings in a valid script that was edited by hand.
/// Identical lines are checked only once, because scripts contain many of them.
class ScriptCheck
{
public:
    using LoadCases = std::optional<QSet<int>>;

    /// `grammars` must outlive the object. If `loadCases` has no value, load case numbers are not
    /// checked.
    ScriptCheck(const ScriptGrammars& grammars, vkd::Language keywords, LoadCases loadCases);

    /// `line` must exist until finish() has been called.
    void readLine(QStringView line);
    /// Returns the findings in the order of the script.
    QVector<ScriptFinding> finish();

private:
    struct Name
    {
        int line;
        int start;
        bool isUsed;
    };

    void add(ScriptFinding::Problem problem, const ScriptToken& token, QStringView before = {});
    void checkLine();
    bool checkFrame(const ScriptToken& first);
    void beginProgram(const ScriptToken& token);
    void endProgram(const ScriptToken& token);
    void checkDefinition(const ScriptToken& token);
    void checkStatement(const ScriptToken* begin, const ScriptToken* end);
    void checkWords(const ScriptGrammar::Statement& statement, const ScriptToken* begin,
                    const ScriptToken* end);
    void checkLoadCases(const ScriptToken* begin, const ScriptToken* end);
    void checkReferences(const ScriptTokens& tokens);
    bool is(const ScriptToken& token, const char* german, const char* english) const;
    QStringView text(const ScriptToken& token) const { return textOf(m_text, token); }

    const ScriptGrammar& m_own;
    const ScriptGrammar& m_other;
    const bool m_isGerman;
    const LoadCases m_loadCases;

    QVector<ScriptFinding> m_findings;
    QSet<QString> m_clean; // lines without findings, which need not be checked again
    QHash<QString, Name> m_names;
    QStringView m_text; // the current line
    int m_line = -1;
    bool m_isInProgram = false;
    bool m_isTitleNext = false;
    bool m_hasProgram = false;
    bool m_hasSetup = false;
    bool m_isFrame = false; // the current line must be checked each time it occurs
};

/// Checks a whole script.
QVector<ScriptFinding> checkScript(const QString& script, const ScriptGrammars& grammars,
                                   vkd::Language keywords, const ScriptCheck::LoadCases& loadCases);

/// Returns the keyword language whose grammar contains more of the script's statements.
vkd::Language likelyKeywords(const QString& script, const ScriptGrammars& grammars);

} // namespace workbench
