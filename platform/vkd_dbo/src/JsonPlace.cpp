#include "JsonPlace.h"

#include <cmath>
#include <limits>

namespace vkd {
namespace dbo {

void JsonPlace::fail(const QString& what) const
{
    const QString place = path();
    throw ModelFileError{place.isEmpty() ? what : place + QLatin1String(": ") + what};
}

QString JsonPlace::path() const
{
    if (!m_parent)
        return QString();
    const QString parent = m_parent->path();
    if (m_index != InObject)
        return parent + QStringLiteral("[%1]").arg(m_index);
    return parent.isEmpty() ? m_key : parent + QLatin1Char('.') + m_key;
}

double JsonPlace::real() const
{
    if (!m_value.isDouble() || !std::isfinite(m_value.toDouble()))
        fail(ModelFileError::tr("a number is required"));
    return m_value.toDouble();
}

int JsonPlace::integer() const
{
    const double value = real();
    if (value != std::floor(value) || std::abs(value) > std::numeric_limits<int>::max())
        fail(ModelFileError::tr("a whole number is required"));
    return int(value);
}

int JsonPlace::positive() const
{
    const int value = integer();
    if (value < 1)
        fail(ModelFileError::tr("a number of 1 or more is required"));
    return value;
}

QString JsonPlace::string() const
{
    if (!m_value.isString())
        fail(ModelFileError::tr("a string is required"));
    return m_value.toString();
}

QString JsonPlace::title(Language language) const
{
    if (m_value.isString())
        return string();
    const QString german = QStringLiteral("german");
    const QString english = QStringLiteral("english");
    checkKeys({german, english}, {});
    return at(language == Language::German ? german : english).string();
}

JsonList JsonPlace::list(int least, int most) const&
{
    if (!m_value.isArray())
        fail(ModelFileError::tr("a list is required"));
    const QJsonArray values = m_value.toArray();
    if (values.size() < least)
        fail(ModelFileError::tr("%1 values are required").arg(least));
    if (most > 0 && values.size() > most)
        fail(ModelFileError::tr("at most %1 values are allowed here").arg(most));
    return {this, values};
}

JsonPlace JsonPlace::part(const QJsonArray& elements, int first) const
{
    JsonPlace place = *this;
    place.m_value = elements;
    place.m_first = first;
    return place;
}

QJsonObject JsonPlace::object() const
{
    if (!m_value.isObject())
        fail(ModelFileError::tr("an object is required"));
    return m_value.toObject();
}

void JsonPlace::checkKeys(const QStringList& needed, const QStringList& optional) const
{
    const QJsonObject all = object();
    const QStringList keys = all.keys();
    for (const QString& key : keys)
        if (!needed.contains(key) && !optional.contains(key))
            fail(ModelFileError::tr("unknown key \"%1\"").arg(key));
    for (const QString& key : needed)
        if (!all.contains(key))
            fail(ModelFileError::tr("the key \"%1\" is missing").arg(key));
}

bool JsonPlace::has(const QString& key) const
{
    return object().contains(key);
}

QStringList JsonPlace::keys() const
{
    return object().keys();
}

JsonPlace JsonPlace::at(const QString& key) const&
{
    return {object().value(key), this, InObject, key};
}

} // namespace dbo
} // namespace vkd
