#include "check/ScriptGrammar.h"

namespace workbench {

ScriptGrammar::ScriptGrammar(const QStringList& examples)
{
    for (const QString& example : examples) {
        const ScriptTokens tokens = scriptTokens(example);
        const ScriptToken* begin = tokens.begin();
        for (const ScriptToken* token = begin; token <= tokens.end(); ++token) {
            if (token != tokens.end() && token->kind == ScriptToken::Definition) {
                learnDefinition(textOf(example, *token));
                break;
            }
            if (token != tokens.end() && token->kind < ScriptToken::Separator)
                continue;
            learnStatement(example, begin, token);
            begin = token + 1;
        }
    }
}

void ScriptGrammar::learnDefinition(QStringView line)
{
    const ScriptDefinition found = scriptDefinition(line);
    QSet<QString>& values = m_definitions[found.name.toString()];
    if (isScriptValue(found.value))
        return;
    values.insert(found.value.toString());
    m_keywords.insert(found.value.toString());
}

void ScriptGrammar::learnStatement(QStringView line, const ScriptToken* begin,
                                   const ScriptToken* end)
{
    if (begin >= end || begin->kind != ScriptToken::Word)
        return;
    Statement& statement = m_statements[textOf(line, *begin).toString()];
    for (const ScriptToken* token = begin; token < end;) {
        const QString keyword = textOf(line, *token).toString();
        m_keywords.insert(keyword);
        int values = 0;
        while (++token < end && token->kind != ScriptToken::Word)
            ++values;
        Word& word = statement[keyword];
        word.leastValues = word.leastValues < 0 ? values : qMin(word.leastValues, values);
        word.mostValues = qMax(word.mostValues, values);
        word.next.insert(token < end ? textOf(line, *token).toString() : QString());
    }
}

const ScriptGrammar::Statement* ScriptGrammar::statement(QStringView keyword) const
{
    const auto found = m_statements.find(lookupKey(keyword));
    return found == m_statements.end() ? nullptr : &*found;
}

bool ScriptGrammar::isKeyword(QStringView word) const
{
    return m_keywords.contains(lookupKey(word));
}

const QSet<QString>* ScriptGrammar::definition(QStringView name) const
{
    const auto found = m_definitions.find(lookupKey(name));
    return found == m_definitions.end() ? nullptr : &*found;
}

bool isTitleStatement(QStringView keyword)
{
    return keyword == QLatin1String("KOPF") || keyword == QLatin1String("HEAD");
}

bool isFrameStatement(QStringView keyword)
{
    return isTitleStatement(keyword) || keyword == QLatin1String("PROG") ||
           keyword == QLatin1String("ENDE") || keyword == QLatin1String("END");
}

ScriptDefinition scriptDefinition(QStringView line)
{
    const QLatin1String begin("#define ");
    const auto equals = line.indexOf(QLatin1Char('='));
    if (!line.startsWith(begin) || equals < begin.size())
        return {};
    const ScriptDefinition found{line.mid(begin.size(), equals - begin.size()).trimmed(),
                                 line.mid(equals + 1).trimmed()};
    return found.value.isEmpty() ? ScriptDefinition() : found;
}

} // namespace workbench
