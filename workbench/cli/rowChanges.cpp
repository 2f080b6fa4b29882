#include "cli/rowChanges.h"

#include <exchange/rowTable.h>
#include <record/rowText.h>

#include <limits>
#include <map>
#include <set>

namespace workbench {

namespace {
using Key = std::vector<int>;

/// Returns the rows keyed by their groups. The keys of rows without groups contain a counter.
std::map<Key, const plib::DesignParameterRow*> byGroups(const plib::DesignRowList& rows)
{
    std::map<Key, const plib::DesignParameterRow*> found;
    int withoutGroups = 0;
    for (const plib::DesignParameterRow& row : rows) {
        const std::set<int> groups(row.groups.begin(), row.groups.end());
        found[groups.empty() ? Key{std::numeric_limits<int>::min(), withoutGroups++}
                             : Key(groups.begin(), groups.end())] = &row;
    }
    return found;
}
} // namespace

QString describedChanges(const plib::DesignRowList& before, const plib::DesignRowList& after,
                         const plib::DesignParameterRow& fresh)
{
    QStringList lines;
    const auto add = [&lines](const plib::DesignParameterRow& row, const QString& what) {
        lines << plib::rowText(row, 0) + QLatin1String(": ") + what + QLatin1Char('\n');
    };
    const auto old = byGroups(before);
    const auto now = byGroups(after);
    for (const auto& [groups, row] : old)
        if (now.count(groups) == 0)
            add(*row, QStringLiteral("deleted"));
    for (const auto& [groups, row] : now) {
        const auto same = old.find(groups);
        if (same == old.end())
            add(*row, QStringLiteral("new row"));
        const QStringList cells =
            plib::differentCells(same == old.end() ? fresh : *same->second, *row);
        for (const QString& cell : cells)
            add(*row, cell);
    }
    return lines.isEmpty() ? QStringLiteral("no changes\n") : lines.join(QString());
}

} // namespace workbench
