#include "record/designRows.h"

#include "record/designRecord.h"

#include <algorithm>

namespace plib {

DesignParameterRow* rowAt(DesignParameterData& data, int row)
{
    if (row < 0 || row >= int(data.rows.size()))
        return nullptr;
    DesignParameterRow& found = data.rows[std::size_t(row)];
    std::sort(found.groups.begin(), found.groups.end());
    return &found;
}

bool hasRemainingRow(const DesignParameterData& data)
{
    return std::any_of(data.rows.begin(), data.rows.end(),
                       [](const DesignParameterRow& row) { return isRemainingGroups(row.groups); });
}

void collectUsedGroups(const DesignParameterData& data, int row, std::vector<int>& list)
{
    for (std::size_t other = 0; other < data.rows.size(); ++other) {
        const std::vector<int>& groups = data.rows[other].groups;
        if (int(other) != row && !isRemainingGroups(groups))
            list.insert(list.end(), groups.begin(), groups.end());
    }
    std::sort(list.begin(), list.end());
}

bool hasRowWithoutGroups(const DesignParameterData& data)
{
    return std::any_of(data.rows.begin(), data.rows.end(),
                       [](const DesignParameterRow& row) { return row.groups.empty(); });
}

bool mayMoveUp(const DesignParameterData& data, int row)
{
    return row > 1 && row < int(data.rows.size());
}

bool mayMoveDown(const DesignParameterData& data, int row)
{
    return row > 0 && row < int(data.rows.size()) - 1;
}

int designRowBeside(const DesignParameterData& data, int row, int direction)
{
    const int count = int(data.rows.size());
    for (int other = row + direction; other >= 0 && other < count; other += direction)
        if (data.rows[std::size_t(other)].record.type != NoDesign)
            return other;
    return -1;
}

std::set<int> rowsWith(int current, const std::set<int>& selected)
{
    return selected.count(current) > 0 ? selected : std::set<int>{current};
}

std::optional<int> commonType(const DesignParameterData& data, const std::set<int>& rows)
{
    std::optional<int> common;
    for (int row : rows) {
        if (row < 0 || row >= int(data.rows.size()))
            continue;
        const int type = data.rows[std::size_t(row)].record.type;
        if (common && *common != type)
            return std::nullopt;
        common = type;
    }
    return common;
}

GroupLists listsAfterAssigning(const DesignParameterData& data, int row,
                               const std::vector<int>& groups)
{
    GroupLists lists;
    if (row < 1 || row >= int(data.rows.size()))
        return lists;
    const std::vector<int>& before = data.rows[std::size_t(row)].groups;
    const std::set<int> old(before.begin(), before.end());
    std::set<int> wanted(groups.begin(), groups.end());
    wanted.erase(wanted.begin(), wanted.lower_bound(0));
    if (wanted == old)
        return lists;
    lists[row].assign(wanted.begin(), wanted.end());
    const auto isNew = [&](int group) { return wanted.count(group) > 0 && old.count(group) == 0; };
    for (int other = 1; other < int(data.rows.size()); ++other) {
        std::vector<int> list = data.rows[std::size_t(other)].groups;
        list.erase(std::remove_if(list.begin(), list.end(), isNew), list.end());
        if (other != row && list.size() != data.rows[std::size_t(other)].groups.size())
            lists[other] = std::move(list);
    }
    return lists;
}

void removeRows(DesignParameterData& data, const std::set<int>& rows)
{
    std::size_t kept = 0;
    auto next = rows.begin();
    for (std::size_t row = 0; row < data.rows.size(); ++row) {
        if (next != rows.end() && *next == int(row))
            ++next;
        else if (kept++ != row)
            data.rows[kept - 1] = std::move(data.rows[row]);
    }
    data.rows.resize(kept);
}

void removeGroups(DesignParameterData& data, const std::vector<int>& groups)
{
    const std::set<int> removed(groups.begin(), groups.end());
    const auto losesAll = [&removed](DesignParameterRow& row) {
        const bool had = !row.groups.empty();
        row.groups.erase(std::remove_if(row.groups.begin(), row.groups.end(),
                                        [&](int group) { return removed.count(group) > 0; }),
                         row.groups.end());
        return had && row.groups.empty();
    };
    data.rows.erase(std::remove_if(data.rows.begin(), data.rows.end(), losesAll), data.rows.end());
}

} // namespace plib
