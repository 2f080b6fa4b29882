#include "window/script/lineChanges.h"

#include "sheet/commonText.h"
#include "window/script/TextLines.h"

#include <algorithm>
#include <vector>

namespace workbench {

namespace {
constexpr int MaximumChanges = 400; // lines; time and memory grow quadratically

/// Returns the number of equal lines at the beginning.
int commonLines(const TextLines& before, const TextLines& after)
{
    const int same = commonBeginning(before.text(), after.text());
    const int line = after.lineAt(same);
    const bool isWhole = after.end(line) == same && before.end(line) == same;
    return isWhole ? line + 1 : line;
}

/// Returns the number of equal lines at the end that are not among the equal lines at the
/// beginning.
int commonEnd(const TextLines& before, const TextLines& after, int beginning)
{
    const int most = std::min(before.count(), after.count()) - beginning;
    int count = 0;
    while (count < most &&
           before.line(before.count() - 1 - count) == after.line(after.count() - 1 - count))
        ++count;
    return count;
}

/// Finds the shortest sequence of removed and inserted lines that turns the old lines of a change
/// into its new lines, using the greedy algorithm of Myers (1986).
class ShortestEdit
{
public:
    ShortestEdit(const TextLines& before, const TextLines& after, const LineChange& whole)
        : m_before(before)
        , m_after(after)
        , m_whole(whole)
    {
    }

    /// Returns the changes in ascending order, or no changes if more than MaximumChanges lines
    /// differ.
    QVector<LineChange> changes()
    {
        for (int edits = 0; edits <= MaximumChanges; ++edits)
            if (reachesEnd(edits))
                return traceBack(edits);
        return {};
    }

private:
    /// For each diagonal from -edits to edits, the number of old lines that the longest path has
    /// passed.
    using Furthest = std::vector<int>;

    static bool isInsertion(const Furthest& previous, int edits, int diagonal)
    {
        return diagonal == -edits ||
               (diagonal != edits &&
                passed(previous, edits, diagonal - 1) < passed(previous, edits, diagonal + 1));
    }

    /// Returns the number of old lines that a path has passed before its last edit.
    static int passed(const Furthest& previous, int edits, int diagonal)
    {
        return previous[size_t(diagonal + edits - 1)];
    }

    bool reachesEnd(int edits)
    {
        Furthest reached(size_t(2 * edits + 1), 0);
        for (int diagonal = -edits; diagonal <= edits; diagonal += 2) {
            int old = 0;
            if (edits > 0)
                old = isInsertion(m_furthest.back(), edits, diagonal)
                          ? passed(m_furthest.back(), edits, diagonal + 1)
                          : passed(m_furthest.back(), edits, diagonal - 1) + 1;
            while (old < m_whole.gone && old - diagonal < m_whole.come &&
                   m_before.line(m_whole.before + old) ==
                       m_after.line(m_whole.after + old - diagonal))
                ++old;
            const int place = diagonal + edits;
            reached[size_t(place)] = old;
            if (old >= m_whole.gone && old - diagonal >= m_whole.come)
                return true;
        }
        m_furthest.push_back(std::move(reached));
        return false;
    }

    QVector<LineChange> traceBack(int edits)
    {
        QVector<LineChange> found;
        int old = m_whole.gone;
        int diagonal = m_whole.gone - m_whole.come;
        for (; edits > 0; --edits) {
            const Furthest& previous = m_furthest[size_t(edits - 1)];
            const bool inserts = isInsertion(previous, edits, diagonal);
            diagonal += inserts ? 1 : -1;
            old = passed(previous, edits, diagonal);
            add(&found, {old, inserts ? 0 : 1, old - diagonal, inserts ? 1 : 0});
        }
        std::reverse(found.begin(), found.end());
        for (LineChange& change : found) {
            change.before += m_whole.before;
            change.after += m_whole.after;
        }
        return found;
    }

    /// Inserts a change before the existing changes, and merges it with an adjacent change.
    static void add(QVector<LineChange>* found, const LineChange& change)
    {
        const bool touches = !found->isEmpty() &&
                             change.before + change.gone == found->last().before &&
                             change.after + change.come == found->last().after;
        if (touches)
            found->last() = {change.before, change.gone + found->last().gone, change.after,
                             change.come + found->last().come};
        else
            found->append(change);
    }

    const TextLines& m_before;
    const TextLines& m_after;
    const LineChange m_whole;
    std::vector<Furthest> m_furthest; // indexed by number of edits
};
} // namespace

QVector<LineChange> lineChanges(const TextLines& before, const TextLines& after)
{
    const int beginning = commonLines(before, after);
    const int end = commonEnd(before, after, beginning);
    const LineChange whole{beginning, before.count() - beginning - end, beginning,
                           after.count() - beginning - end};
    if (whole.gone == 0 && whole.come == 0)
        return {};
    if (whole.gone == 0 || whole.come == 0)
        return {whole};
    const QVector<LineChange> changes = ShortestEdit(before, after, whole).changes();
    return changes.isEmpty() ? QVector<LineChange>{whole} : changes;
}

} // namespace workbench
