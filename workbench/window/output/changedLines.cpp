#include "window/output/changedLines.h"

#include <algorithm>

namespace workbench {

namespace {
constexpr int MaximumLength = 2000; // in lines: time and memory grow with its square

int commonBeginning(const QStringList& before, const QStringList& after)
{
    int count = 0;
    while (count < before.size() && count < after.size() && before[count] == after[count])
        ++count;
    return count;
}

int commonEnd(const QStringList& before, const QStringList& after, int beginning)
{
    const int most = std::min(before.size(), after.size()) - beginning;
    int count = 0;
    while (count < most && before[before.size() - 1 - count] == after[after.size() - 1 - count])
        ++count;
    return count;
}

/// Compares by the lengths of the longest common sequences of the remaining lines.
QVector<int> notCommon(const QStringList& before, const QStringList& after)
{
    const int rows = before.size();
    const int columns = after.size();
    QVector<int> lengths((rows + 1) * (columns + 1));
    const auto length = [&](int row, int column) -> int& {
        return lengths[row * (columns + 1) + column];
    };
    for (int row = rows - 1; row >= 0; --row)
        for (int column = columns - 1; column >= 0; --column)
            length(row, column) = before[row] == after[column]
                                      ? length(row + 1, column + 1) + 1
                                      : std::max(length(row + 1, column), length(row, column + 1));
    QVector<int> changed;
    int row = 0;
    for (int column = 0; column < columns; ++column) {
        while (row < rows && before[row] != after[column] &&
               length(row + 1, column) >= length(row, column + 1))
            ++row;
        if (row < rows && before[row] == after[column])
            ++row;
        else
            changed << column;
    }
    return changed;
}
} // namespace

QVector<int> changedLines(const QStringList& before, const QStringList& after)
{
    const int beginning = commonBeginning(before, after);
    const int end = commonEnd(before, after, beginning);
    const QStringList gone = before.mid(beginning, before.size() - beginning - end);
    const QStringList come = after.mid(beginning, after.size() - beginning - end);
    QVector<int> changed;
    if (gone.size() > MaximumLength || come.size() > MaximumLength)
        for (int i = 0; i < come.size(); ++i)
            changed << i;
    else
        changed = notCommon(gone, come);
    for (int& line : changed)
        line += beginning;
    return changed;
}

} // namespace workbench
