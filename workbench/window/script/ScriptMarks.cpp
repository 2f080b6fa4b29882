#include "window/script/ScriptMarks.h"

#include <algorithm>

namespace workbench {

namespace {
/// Returns the last change at or before a line, or null.
const LineChange* lastChange(const QVector<LineChange>& changes, int line)
{
    const auto next = std::upper_bound(
        changes.begin(), changes.end(), line,
        [](int number, const LineChange& change) { return number < change.after; });
    return next == changes.begin() ? nullptr : &*std::prev(next);
}
} // namespace

bool ScriptMarks::isChanged(int line) const
{
    const LineChange* last = lastChange(changes, line);
    return last && line < last->after + last->come;
}

int ScriptMarks::removedBefore(int line) const
{
    const LineChange* last = lastChange(changes, line);
    return last && last->after == line && last->come == 0 ? last->gone : 0;
}

int ScriptMarks::hitAt(int position) const
{
    return int(std::lower_bound(hits.begin(), hits.end(), position) - hits.begin());
}

int ScriptMarks::findingAt(int line) const
{
    const auto found = std::lower_bound(
        findings.begin(), findings.end(), line,
        [](const ScriptFinding& finding, int number) { return finding.line < number; });
    return int(found - findings.begin());
}

} // namespace workbench
