#include "table/columnWidths.h"

#include <algorithm>
#include <numeric>

namespace plib {

namespace {
/// Distributes an amount in proportion to the weights. Each part is taken from the remaining
/// amount, so that rounding leaves no gap.
std::vector<int> parts(int amount, const std::vector<int>& weights)
{
    int sum = std::accumulate(weights.begin(), weights.end(), 0);
    std::vector<int> result;
    for (int weight : weights) {
        result.push_back(sum == 0 ? 0 : int(static_cast<long long>(amount) * weight / sum));
        amount -= result.back();
        sum -= weight;
    }
    return result;
}
} // namespace

std::vector<int> columnWidths(const std::vector<ColumnShare>& columns, int available)
{
    std::vector<int> lacking, initial;
    int room = available;
    for (const ColumnShare& column : columns) {
        const bool isFree = !column.isChosenByUser;
        initial.push_back(isFree ? column.width : 0);
        lacking.push_back(isFree ? std::max(0, column.needed - column.width) : 0);
        room -= column.width;
    }
    const int wanted = std::accumulate(lacking.begin(), lacking.end(), 0);
    const int first = std::clamp(room, 0, wanted);
    const std::vector<int> served = parts(first, lacking);
    const std::vector<int> rest = parts(std::max(room - first, 0), initial);
    std::vector<int> widths;
    for (std::size_t i = 0; i < columns.size(); ++i)
        widths.push_back(columns[i].width + served[i] + rest[i]);
    return widths;
}

} // namespace plib
