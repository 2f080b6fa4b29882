#include "vkd_h_groupInput.h"

#include "groups/shownName.h"

#include <vkd_dbo_packedNames.h>

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace vkd {
namespace h {

namespace {
/// A set of flags, one for each existing group. A list of the matching groups could become very
/// long, because the user may repeat a range thousands of times.
class Marks
{
public:
    explicit Marks(const std::vector<int>& existing)
        : m_existing(existing)
        , m_isMarked(existing.size())
    {
    }

    /// Marks the groups from `first` to `last`. Returns false if none exists.
    bool mark(qint64 first, qint64 last)
    {
        const auto begin = std::lower_bound(m_existing.begin(), m_existing.end(), first);
        const auto end = std::upper_bound(begin, m_existing.end(), last);
        std::fill(m_isMarked.begin() + (begin - m_existing.begin()),
                  m_isMarked.begin() + (end - m_existing.begin()), true);
        return begin != end;
    }

    std::vector<int> groups() const
    {
        std::vector<int> marked;
        for (size_t i = 0; i < m_existing.size(); ++i)
            if (m_isMarked[i])
                marked.push_back(m_existing[i]);
        return marked;
    }

private:
    const std::vector<int>& m_existing;
    std::vector<bool> m_isMarked;
};

QStringList parts(const QString& text)
{
    static const QRegularExpression separator(QStringLiteral("[ ,;]+"));
    return text.split(separator, Qt::SkipEmptyParts);
}

/// Replaces dashes in pasted text with hyphens and removes the spaces around them.
QString withPlainRanges(const QString& text)
{
    static const QRegularExpression dash(QStringLiteral("[\\x{2010}-\\x{2015}\\x{2212}]"));
    QString plain = text.simplified(); // keeps the replacements linear in time
    plain.replace(dash, QStringLiteral("-"));
    plain.replace(QStringLiteral(" -"), QStringLiteral("-"));
    plain.replace(QStringLiteral("- "), QStringLiteral("-"));
    return plain;
}

/// Converts digits to a number. On overflow, returns the maximum, which is greater than any group
/// number.
qint64 number(const QString& digits)
{
    bool isFitting = false;
    const qint64 value = digits.toLongLong(&isFitting);
    return isFitting ? value : std::numeric_limits<qint64>::max();
}
} // namespace

GroupInput readNumbers(const QString& text, const std::vector<int>& existing)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]+)(?:-([0-9]+))?\\z"));
    GroupInput input;
    Marks marks(existing);
    const QStringList all = parts(withPlainRanges(text));
    for (const QString& part : all) {
        const QRegularExpressionMatch match = pattern.match(part);
        if (!match.hasMatch()) {
            input.unreadable << part;
            continue;
        }
        const qint64 first = number(match.captured(1));
        const qint64 last = match.capturedLength(2) > 0 ? number(match.captured(2)) : first;
        if (!marks.mark(std::min(first, last), std::max(first, last)))
            input.missing << part;
    }
    input.groups = marks.groups();
    return input;
}

GroupInput readNames(const QString& text, const std::vector<int>& existing)
{
    QMultiHash<QString, int> byFoldedName;
    for (int packed : existing)
        byFoldedName.insert(shownName(packed).toCaseFolded(), packed);
    GroupInput input;
    Marks marks(existing);
    const QStringList all = parts(text.simplified());
    for (const QString& part : all) {
        const QList<int> alike = byFoldedName.values(part.toCaseFolded());
        if (alike.isEmpty())
            input.missing << part;
        else if (alike.size() > 1 && alike.contains(dbo::packedName(part)))
            marks.mark(dbo::packedName(part), dbo::packedName(part));
        else
            for (int packed : alike)
                marks.mark(packed, packed);
    }
    input.groups = marks.groups();
    return input;
}

GroupInput readNumbersAndNames(const QString& text, const std::vector<int>& numbers,
                               const std::vector<int>& names)
{
    GroupInput input = readNumbers(text, numbers);
    const QStringList others = input.unreadable + input.missing;
    const GroupInput named = readNames(others.join(QLatin1Char(' ')), names);
    input.groups.insert(input.groups.end(), named.groups.begin(), named.groups.end());
    return {input.groups, {}, named.missing};
}

} // namespace h
} // namespace vkd
