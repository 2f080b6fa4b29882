#include "check/ScriptCheck.h"

#include <algorithm>

namespace workbench {

namespace {
constexpr int MostClean = 20000; // lines; limits memory use if few lines are repeated

template <class Visit>
void visitLines(const QString& script, Visit visit)
{
    int start = 0;
    while (start < script.size()) {
        int end = script.indexOf(QLatin1Char('\n'), start);
        if (end < 0)
            end = script.size();
        const bool hasReturn = end > start && script[end - 1] == QLatin1Char('\r');
        visit(QStringView(script).mid(start, end - start - (hasReturn ? 1 : 0)));
        start = end + 1;
    }
}

QStringView nameOf(QStringView reference)
{
    return reference.mid(2, reference.size() - 3);
}
} // namespace

ScriptCheck::ScriptCheck(const ScriptGrammars& grammars, vkd::Language keywords,
                         LoadCases loadCases)
    : m_own(grammars.of(keywords))
    , m_other(keywords == vkd::Language::German ? grammars.english : grammars.german)
    , m_isGerman(keywords == vkd::Language::German)
    , m_loadCases(std::move(loadCases))
{
}

void ScriptCheck::add(ScriptFinding::Problem problem, const ScriptToken& token, QStringView before)
{
    m_findings.append(
        {problem, m_line, token.start, token.length, text(token).toString(), before.toString()});
}

bool ScriptCheck::is(const ScriptToken& token, const char* german, const char* english) const
{
    return text(token) == QLatin1String(m_isGerman ? german : english);
}

void ScriptCheck::readLine(QStringView line)
{
    ++m_line;
    m_text = line;
    const QString key = lookupKey(line);
    if (m_isInProgram && !m_isTitleNext && m_clean.contains(key))
        return;
    const int before = m_findings.size();
    m_isFrame = false;
    checkLine();
    if (m_findings.size() == before && !m_isFrame && m_clean.size() < MostClean)
        m_clean.insert(key);
}

void ScriptCheck::checkLine()
{
    const ScriptTokens tokens = scriptTokens(m_text);
    if (tokens.isEmpty() || tokens[0].kind == ScriptToken::Comment || checkFrame(tokens[0]))
        return;
    if (tokens[0].kind == ScriptToken::Definition)
        return checkDefinition(tokens[0]);
    const ScriptToken* begin = tokens.begin();
    for (const ScriptToken* token = begin; begin < tokens.end(); ++token) {
        const bool isEnd = token == tokens.end() || token->kind >= ScriptToken::Separator;
        if (!isEnd)
            continue;
        if (begin < token)
            checkStatement(begin, token);
        begin = token + 1;
    }
    checkReferences(tokens);
}

/// Checks statements that begin, set up or end a program block. Returns whether the line needs no
/// further checks.
bool ScriptCheck::checkFrame(const ScriptToken& first)
{
    const bool isProgram = text(first) == QLatin1String("PROG");
    // The language of the title line is a separate setting.
    const bool isTitle = isTitleStatement(text(first));
    const bool isEnd = is(first, "ENDE", "END");
    const bool isSetup = text(first) == QLatin1String("SIZE");
    m_isFrame = isProgram || isTitle || isEnd || isSetup;
    if (isProgram) {
        beginProgram(first);
    } else if (!m_isInProgram) {
        add(ScriptFinding::OutsideProgram, first);
        return true;
    } else if (isEnd) {
        endProgram(first);
    } else if (m_isTitleNext != isTitle) {
        add(isTitle ? ScriptFinding::OutsideProgram : ScriptFinding::NoTitle, first);
        m_isTitleNext = false;
        return isTitle;
    } else {
        m_isTitleNext = false;
        m_hasSetup = m_hasSetup || isSetup;
    }
    return isProgram || isTitle || isEnd;
}

void ScriptCheck::beginProgram(const ScriptToken& token)
{
    if (m_isInProgram)
        add(ScriptFinding::NoEnd, token);
    m_isInProgram = m_isTitleNext = m_hasProgram = true;
    m_hasSetup = false;
}

void ScriptCheck::endProgram(const ScriptToken& token)
{
    if (!m_hasSetup)
        add(ScriptFinding::NoSetup, token);
    m_isInProgram = m_isTitleNext = false;
}

void ScriptCheck::checkDefinition(const ScriptToken& token)
{
    m_isFrame = true; // the result depends on the other definitions
    const ScriptDefinition found = scriptDefinition(text(token));
    if (found.name.isEmpty())
        return add(ScriptFinding::NoDefinition, token);
    const auto place = [this](QStringView part) {
        return ScriptToken{ScriptToken::Word, int(part.data() - m_text.data()), int(part.size())};
    };
    const QString name = found.name.toString();
    if (m_names.contains(name))
        return add(ScriptFinding::DefinedTwice, place(found.name));
    const QSet<QString>* values = m_own.definition(found.name);
    m_names.insert(name, {m_line, place(found.name).start, values != nullptr});
    if (values && !isScriptValue(found.value) && !values->contains(lookupKey(found.value)))
        add(m_other.isKeyword(found.value) ? ScriptFinding::OtherLanguage
                                           : ScriptFinding::UnknownKeyword,
            place(found.value));
}

void ScriptCheck::checkStatement(const ScriptToken* begin, const ScriptToken* end)
{
    const ScriptGrammar::Statement* statement = m_own.statement(text(*begin));
    if (statement)
        checkWords(*statement, begin, end);
    else
        add(m_other.statement(text(*begin)) ? ScriptFinding::OtherLanguage
                                            : ScriptFinding::UnknownStatement,
            *begin);
    if (statement && is(*begin, "LF", "LC"))
        checkLoadCases(begin, end);
}

/// After an unknown keyword, neither the order nor the number of values is known.
void ScriptCheck::checkWords(const ScriptGrammar::Statement& statement, const ScriptToken* begin,
                             const ScriptToken* end)
{
    const ScriptGrammar::Word* known = nullptr;
    QStringView last;
    for (const ScriptToken* token = begin; token < end;) {
        const QStringView keyword = text(*token);
        const auto found = statement.find(lookupKey(keyword));
        const bool isKnown = found != statement.end();
        if (!isKnown)
            add(m_other.isKeyword(keyword) && !m_own.isKeyword(keyword)
                    ? ScriptFinding::OtherLanguage
                    : ScriptFinding::UnknownKeyword,
                *token);
        else if (known && !known->next.contains(lookupKey(keyword)))
            add(ScriptFinding::WrongOrder, *token, last);
        known = isKnown ? &*found : nullptr;
        last = keyword;
        int values = 0;
        while (++token < end && token->kind != ScriptToken::Word)
            if (++values > (known ? known->mostValues : values))
                add(ScriptFinding::UnexpectedValue, *token, last);
        const ScriptToken gap{ScriptToken::Word, int(last.data() - m_text.data() + last.size()), 0};
        if (known && values < known->leastValues)
            add(ScriptFinding::MissingValue, gap, last);
        else if (known && token == end && !known->next.contains(QString()))
            add(ScriptFinding::Incomplete, gap, last);
    }
}

void ScriptCheck::checkLoadCases(const ScriptToken* begin, const ScriptToken* end)
{
    QStringView first;
    for (const ScriptToken* token = begin; token < end; ++token) {
        if (token->kind != ScriptToken::Value)
            continue;
        const QStringView number = text(*token);
        if (number == first)
            continue;
        if (m_loadCases && !m_loadCases->contains(lookupKey(number).toInt()))
            add(ScriptFinding::UnknownLoadCase, *token);
        else if (!first.isEmpty())
            add(ScriptFinding::OtherDesignCase, *token, first);
        if (first.isEmpty())
            first = number;
    }
}

void ScriptCheck::checkReferences(const ScriptTokens& tokens)
{
    for (const ScriptToken& token : tokens) {
        if (token.kind == ScriptToken::OpenReference)
            add(ScriptFinding::OpenReference, token);
        if (token.kind != ScriptToken::Reference)
            continue;
        const auto name = m_names.find(lookupKey(nameOf(text(token))));
        if (name == m_names.end())
            add(ScriptFinding::Undefined, token);
        else
            name->isUsed = true;
    }
}

QVector<ScriptFinding> ScriptCheck::finish()
{
    const int last = qMax(0, m_line);
    if (!m_hasProgram)
        m_findings.append({ScriptFinding::NoProgram, 0, 0, 0, {}, {}});
    else if (m_isInProgram)
        m_findings.append({ScriptFinding::NoEnd, last, int(m_text.size()), 0, {}, {}});
    for (auto name = m_names.cbegin(); name != m_names.cend(); ++name)
        if (!name->isUsed)
            m_findings.append({ScriptFinding::NotUsed, name->line, name->start,
                               int(name.key().size()), name.key(), QString()});
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const ScriptFinding& a, const ScriptFinding& b) {
                         return a.line != b.line ? a.line < b.line : a.start < b.start;
                     });
    m_clean.clear(); // the strings refer to the lines, which may now be destroyed
    return m_findings;
}

QVector<ScriptFinding> checkScript(const QString& script, const ScriptGrammars& grammars,
                                   vkd::Language keywords, const ScriptCheck::LoadCases& loadCases)
{
    ScriptCheck check(grammars, keywords, loadCases);
    visitLines(script, [&check](QStringView line) { check.readLine(line); });
    return check.finish();
}

vkd::Language likelyKeywords(const QString& script, const ScriptGrammars& grammars)
{
    int balance = 0;
    visitLines(script, [&](QStringView line) {
        const ScriptTokens tokens = scriptTokens(line);
        if (tokens.isEmpty())
            return;
        const QStringView word = textOf(line, tokens[0]);
        balance += int(grammars.german.statement(word) != nullptr) -
                   int(grammars.english.statement(word) != nullptr);
    });
    return balance > 0 ? vkd::Language::German : vkd::Language::English;
}

} // namespace workbench
