#include "tree/RowOrders.h"

#include <algorithm>

namespace plib {

namespace {
bool isLess(const RowOrders::Row& left, const RowOrders::Row& right)
{
    return left.number < right.number;
}

bool isNotLess(const RowOrders::Row& left, const RowOrders::Row& right)
{
    return !isLess(left, right);
}

bool isSame(const RowOrders::Row& left, const RowOrders::Row& right)
{
    return left.number == right.number;
}
} // namespace

void RowOrders::add(const QVector<int>& numbers, int time)
{
    m_rows.reserve(m_rows.size() + size_t(numbers.size()));
    for (int number : numbers)
        m_rows.push_back({number, time++});
}

void RowOrders::sort()
{
    if (std::adjacent_find(m_rows.begin(), m_rows.end(), isNotLess) == m_rows.end())
        return;
    std::stable_sort(m_rows.begin(), m_rows.end(), isLess);
    // Removes duplicates from the end, so that the last of them remains.
    m_rows.erase(m_rows.begin(), std::unique(m_rows.rbegin(), m_rows.rend(), isSame).base());
}

size_t RowOrders::search(int number) const
{
    const auto found = std::lower_bound(m_rows.begin(), m_rows.end(), Row{number, 0}, isLess);
    return size_t(found - m_rows.begin());
}

} // namespace plib
