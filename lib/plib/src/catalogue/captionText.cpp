#include "catalogue/captionText.h"

#include <vkd_lib_text.h>
#include <vkd_lib_value.h>

namespace plib {

namespace {
constexpr int QualifierLength = 3;
constexpr int TokenLength = 4;

/// The words that a qualifier adds to a caption.
struct Addition
{
    const char* characters; ///< qualifiers that add these words
    const char* token;
    const char* suffix; ///< "%" is replaced with the qualifier
};

constexpr Addition FirstAdditions[] = {
    {"1", "", "I"},    {"2", "", "II"},      {"3", "", "III"},     {"ABC", "&0ZH", ""},
    {"O", "^19O", ""}, {"S", "^1LN", ""},    {"T", "^1LT", ""},    {"U", "^19U", ""},
    {"V", "&0Z1", ""}, {"XYZ", "&0ZG", "%"}, {"abc", "&0ZM", "%"}, {"s", "^1LA", ""},
    {"t", "^1LB", ""}, {"xyz", "&0ZL", "%"},
};

constexpr Addition SecondAdditions[] = {
    {"+", "^143", "1 + 2"}, {"1", "^143", "1"}, {"2", "^143", "2"},
    {"h", "&7ZH", ""},      {"st", "&7ZT", ""},
};

constexpr Addition ThirdAdditions[] = {
    {"A", "&25C", ""}, {"C", "&27W", ""}, {"D", "&271", ""},
    {"I", "&20A", ""}, {"R", "&27Q", ""}, {"S", "&27E", ""},
};

bool isTokenSign(QChar sign)
{
    return sign == QLatin1Char('&') || sign == QLatin1Char('^') || sign == QLatin1Char('$');
}

/// Returns the message of class 0, 1 or 4 for a token.
QString tokenText(QStringView token)
{
    const QChar sign = token.at(0);
    const int textClass = sign == QLatin1Char('&') ? 0 : sign == QLatin1Char('^') ? 1 : 4;
    const QByteArray key = token.mid(1, 3).toLatin1();
    const QString text = QString::fromStdString(
        vkd_lib_convtext(textClass, vkd_lib_getvalue(VKD_SETTING_LANGUAGE), key.constData()));
    // An abbreviation before the first ">" is removed. A ">" at the beginning is part of the text.
    const int mark = textClass == 0 ? text.indexOf(QLatin1Char('>')) : -1;
    return mark > 0 ? text.mid(mark + 1) : text;
}

enum class Place { Behind, Before };

/// Adds the text of the token and the suffix. The suffix is added even if the token has no text.
void expand(QStringView token, const QString& suffix, Place place, QString* out)
{
    const QLatin1Char blank(' ');
    const QString text = token.isEmpty() ? QString() : tokenText(token);
    if (!text.isEmpty())
        *out = place == Place::Before ? text + blank + *out : *out + blank + text;
    if (!suffix.isEmpty())
        *out += blank + suffix;
}

template <size_t N>
void addQualifier(const Addition (&additions)[N], QChar qualifier, Place place, QString* out)
{
    for (const Addition& addition : additions) {
        if (!QLatin1String(addition.characters).contains(qualifier))
            continue;
        const bool repeats = addition.suffix[0] == '%';
        expand(QString::fromLatin1(addition.token),
               repeats ? QString(qualifier) : QString::fromLatin1(addition.suffix), place, out);
        return;
    }
}
} // namespace

bool isKeyText(QStringView text)
{
    if (text.size() >= TokenLength && (text.at(0) == QLatin1Char('@') || isTokenSign(text.at(0))))
        return true;
    // After qualifiers, an "@" does not begin an identifier.
    return text.size() >= QualifierLength + TokenLength && isTokenSign(text.at(QualifierLength));
}

bool hasQualifier(QStringView keyText)
{
    return isKeyText(keyText.mid(QualifierLength, TokenLength));
}

QString captionText(QStringView field)
{
    const bool qualified = hasQualifier(field);
    const QStringView base = field.mid(qualified ? QualifierLength : 0, TokenLength);
    if (!base.isEmpty() && !isTokenSign(base.at(0)))
        return QString();
    QString out(QLatin1String("")); // empty but not null, even if the token has no text
    expand(base, QString(), Place::Behind, &out);
    if (!qualified)
        return out;
    addQualifier(ThirdAdditions, field.at(2), Place::Before, &out);
    addQualifier(FirstAdditions, field.at(0), Place::Behind, &out);
    addQualifier(SecondAdditions, field.at(1), Place::Behind, &out);
    return out;
}

QString captionOr(QStringView field, QStringView fallback)
{
    const QString text = captionText(field);
    return text.isEmpty() ? fallback.toString() : text.trimmed();
}

/// The identifier is the key text, padded with three spaces if the key text has no qualifiers.
QString captionOfId(const QString& id, const QString& title)
{
    const QLatin1String alignment("   ");
    return captionOr(id.startsWith(alignment) ? id.mid(alignment.size()) : id, title);
}

} // namespace plib
