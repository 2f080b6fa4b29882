#include "sheet/commonText.h"

#include <algorithm>
#include <cstring>

namespace workbench {

namespace {
constexpr int Block = 4096;

bool areEqual(QStringView a, QStringView b)
{
    return std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0;
}
} // namespace

int commonBeginning(QStringView a, QStringView b)
{
    const int most = int(std::min(a.size(), b.size()));
    int count = 0;
    while (count + Block <= most && areEqual(a.mid(count, Block), b.mid(count, Block)))
        count += Block;
    while (count < most && a[count] == b[count])
        ++count;
    return count;
}

int commonEnd(QStringView a, QStringView b)
{
    const int most = int(std::min(a.size(), b.size()));
    const auto block = [](QStringView text, int count) {
        return text.mid(text.size() - count - Block, Block);
    };
    int count = 0;
    while (count + Block <= most && areEqual(block(a, count), block(b, count)))
        count += Block;
    while (count < most && a[a.size() - 1 - count] == b[b.size() - 1 - count])
        ++count;
    return count;
}

} // namespace workbench
