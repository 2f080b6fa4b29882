#include "search/searchHits.h"

#include <algorithm>

namespace plib {

namespace {
constexpr int MaximumCount = 32; // a word is a bit of a quint32

bool isAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
}

/// Returns the text in lower case. QString::toCaseFolded() keeps the sharp s.
QString folded(const QString& text)
{
    return text.toCaseFolded().replace(QChar(0xdf), QLatin1String("ss"));
}

QString withoutAccents(const QString& text)
{
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D))
        if (!c.isMark())
            plain += c;
    return plain;
}

QString transcribed(QString text)
{
    text = text.normalized(QString::NormalizationForm_C);
    return withoutAccents(text.replace(QChar(0xe4), QLatin1String("ae"))
                              .replace(QChar(0xf6), QLatin1String("oe"))
                              .replace(QChar(0xfc), QLatin1String("ue")));
}
} // namespace

QStringList searchWords(const QString& text)
{
    QStringList words;
    for (const QString& word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words << transcribed(folded(word));
    words.removeDuplicates();
    return words.mid(0, MaximumCount);
}

SearchedText::SearchedText(const QString& text)
    : m_plain(folded(text))
{
    if (isAscii(m_plain))
        return;
    m_transcribed = transcribed(m_plain);
    m_plain = withoutAccents(m_plain);
}

bool SearchedText::contains(const QString& word) const
{
    return m_plain.contains(word) || m_transcribed.contains(word);
}

quint32 SearchedText::wordsIn(const QStringList& words) const
{
    quint32 found = 0;
    for (int i = 0; i < words.size(); ++i)
        if (contains(words[i]))
            found |= quint32(1) << i;
    return found;
}

} // namespace plib
