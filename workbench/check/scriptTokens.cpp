#include "check/scriptTokens.h"

namespace workbench {

namespace {
bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isBlank(QChar c)
{
    return c.isSpace() || c == QLatin1Char('"') || c == QLatin1Char('(') || c == QLatin1Char(')');
}

bool endsWord(QChar c)
{
    return isBlank(c) || c == QLatin1Char(';') || c == QLatin1Char('$');
}

int digitsAt(QStringView text, int at)
{
    int end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end - at;
}

bool isSign(QStringView text, int at)
{
    return at < text.size() && (text[at] == QLatin1Char('-') || text[at] == QLatin1Char('+'));
}

/// Returns the position after the number that begins at `at`, or -1 if no number begins there.
int numberEnd(QStringView text, int at)
{
    if (isSign(text, at))
        ++at;
    const int whole = digitsAt(text, at);
    at += whole;
    int fraction = 0;
    if (at < text.size() && text[at] == QLatin1Char('.')) {
        fraction = digitsAt(text, at + 1);
        at += 1 + fraction;
    }
    if (whole + fraction == 0)
        return -1;
    if (at < text.size() && text[at].toLower() == QLatin1Char('e')) {
        const int exponent = isSign(text, at + 1) ? at + 2 : at + 1;
        const int count = digitsAt(text, exponent);
        return count > 0 ? exponent + count : -1;
    }
    return at;
}

/// Returns the token that begins at `start`, where the line must not be blank.
ScriptToken tokenAt(QStringView line, int start)
{
    const auto from = [start](ScriptToken::Kind kind, int end) {
        return ScriptToken{kind, start, end - start};
    };
    const int size = int(line.size());
    if (line[start] == QLatin1Char(';'))
        return from(ScriptToken::Separator, start + 1);
    if (line[start] == QLatin1Char('$')) {
        if (start + 1 == size || line[start + 1] != QLatin1Char('('))
            return from(ScriptToken::Comment, size);
        int end = start + 2;
        while (end < size && !endsWord(line[end]))
            ++end;
        const bool isClosed = end < size && line[end] == QLatin1Char(')');
        return isClosed ? from(ScriptToken::Reference, end + 1)
                        : from(ScriptToken::OpenReference, end);
    }
    int end = start + 1;
    while (end < size && !endsWord(line[end]))
        ++end;
    return from(
        isScriptValue(line.mid(start, end - start)) ? ScriptToken::Value : ScriptToken::Word, end);
}

int commentStart(QStringView line)
{
    for (int i = 0; i < line.size(); ++i)
        if (line[i] == QLatin1Char('$') &&
            (i + 1 == line.size() || line[i + 1] != QLatin1Char('(')))
            return i;
    return int(line.size());
}
} // namespace

bool isScriptValue(QStringView text)
{
    if (text == QLatin1String("-"))
        return true;
    int at = numberEnd(text, 0);
    while (at >= 0 && at < text.size() && text[at] == QLatin1Char('*'))
        at = numberEnd(text, at + 1);
    return at == text.size();
}

ScriptTokens scriptTokens(QStringView line)
{
    ScriptTokens tokens;
    int at = 0;
    if (line.startsWith(QLatin1Char('#'))) {
        at = commentStart(line);
        tokens.append({ScriptToken::Definition, 0, at});
    }
    while (at < line.size()) {
        if (isBlank(line[at])) {
            ++at;
            continue;
        }
        tokens.append(tokenAt(line, at));
        at = tokens.last().start + tokens.last().length;
    }
    return tokens;
}

} // namespace workbench
