#pragma once

#include <QSet>

#include <algorithm>
#include <vector>

namespace vkd {
namespace dbo {

/// A set of positive numbers. Models number their items almost without gaps, so that a bit for each
/// number takes a fraction of the memory and time of a hash table; only large numbers are hashed.
class NumberSet
{
public:
    /// Returns false if the number is already in the set.
    bool insert(int number)
    {
        if (contains(number))
            return false;
        if (number >= MostBits) {
            m_large.insert(number);
            return true;
        }
        if (size_t(number) >= m_isSmall.size())
            m_isSmall.resize(std::max(size_t(number) + 1, 2 * m_isSmall.size()));
        m_isSmall[size_t(number)] = true;
        return true;
    }

    bool contains(int number) const
    {
        if (number < 0 || number >= MostBits)
            return m_large.contains(number);
        return size_t(number) < m_isSmall.size() && m_isSmall[size_t(number)];
    }

private:
    static constexpr int MostBits = 1 << 25; // 4 MB

    std::vector<bool> m_isSmall;
    QSet<int> m_large;
};

} // namespace dbo
} // namespace vkd
