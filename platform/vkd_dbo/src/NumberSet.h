#pragma once

#include <QSet>

#include <algorithm>
#include <vector>

namespace vkd {
namespace dbo {

/// A set of positive numbers. The items of a model are numbered almost without gaps. One bit per
/// number therefore takes only a fraction of the memory and time of a hash table. Only large
/// numbers are hashed.
class NumberSet
{
public:
    /// Inserts a number. Returns false if it is already in the set.
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
    static constexpr int MostBits = 1 << 25; // number of bits that fit into 4 MB

    std::vector<bool> m_isSmall;
    QSet<int> m_large;
};

} // namespace dbo
} // namespace vkd
