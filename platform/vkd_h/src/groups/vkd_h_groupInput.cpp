#include "vkd_h_groupInput.h"

#include "groups/shownName.h"

#include <vkd_dbo_packedNames.h>

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <utility>

namespace vkd {
namespace h {

namespace {
/// Ranges of existing groups. Their groups are listed only at the end, because the user may repeat
/// a long range thousands of times.
class Ranges
{
public:
    explicit Ranges(const std::vector<int>& existing)
        : m_existing(existing)
    {
    }

    /// Adds the groups from `first` to `last`. Returns false if none exists.
    bool add(qint64 first, qint64 last)
    {
        const auto begin = std::lower_bound(m_existing.begin(), m_existing.end(), first);
        const auto end = std::upper_bound(begin, m_existing.end(), last);
        m_ranges.emplace_back(begin, end);
        return begin != end;
    }

    /// Returns each group once, ascending.
    std::vector<int> groups()
    {
        std::sort(m_ranges.begin(), m_ranges.end());
        std::vector<int> all;
        auto next = m_existing.begin();
        for (const auto& [begin, end] : m_ranges) {
            next = std::max(next, begin);
            if (next < end)
                all.insert(all.end(), next, end);
            next = std::max(next, end);
        }
        return all;
    }

private:
    using Place = std::vector<int>::const_iterator;
    const std::vector<int>& m_existing;
    std::vector<std::pair<Place, Place>> m_ranges;
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
    Ranges ranges(existing);
    const QStringList all = parts(withPlainRanges(text));
    for (const QString& part : all) {
        const QRegularExpressionMatch match = pattern.match(part);
        if (!match.hasMatch()) {
            input.unreadable << part;
            continue;
        }
        const qint64 first = number(match.captured(1));
        const qint64 last = match.capturedLength(2) > 0 ? number(match.captured(2)) : first;
        if (!ranges.add(std::min(first, last), std::max(first, last)))
            input.missing << part;
    }
    input.groups = ranges.groups();
    return input;
}

GroupNames::GroupNames(const std::vector<int>& packed)
    : m_packed(packed)
{
    for (int name : packed)
        m_byFoldedName.insert(shownName(name).toCaseFolded(), name);
}

bool GroupNames::contains(int packed) const
{
    return std::binary_search(m_packed.begin(), m_packed.end(), packed);
}

QList<int> GroupNames::alike(const QString& name) const
{
    const QList<int> all = m_byFoldedName.values(name.toCaseFolded());
    const int packed = dbo::packedName(name);
    return all.size() > 1 && all.contains(packed) ? QList<int>{packed} : all;
}

GroupInput readNames(const QString& text, const GroupNames& existing)
{
    GroupInput input;
    Ranges ranges(existing.packed());
    const QStringList all = parts(text.simplified());
    for (const QString& part : all) {
        const QList<int> alike = existing.alike(part);
        if (alike.isEmpty())
            input.missing << part;
        for (int packed : alike)
            ranges.add(packed, packed);
    }
    input.groups = ranges.groups();
    return input;
}

GroupInput readNumbersAndNames(const QString& text, const std::vector<int>& numbers,
                               const GroupNames& names)
{
    GroupInput input = readNumbers(text, numbers);
    const QStringList others = input.unreadable + input.missing;
    const GroupInput named = readNames(others.join(QLatin1Char(' ')), names);
    input.groups.insert(input.groups.end(), named.groups.begin(), named.groups.end());
    return {input.groups, {}, named.missing};
}

} // namespace h
} // namespace vkd
