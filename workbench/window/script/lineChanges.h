#pragma once

#include <QVector>

namespace workbench {

class TextLines;

/// Lines of a text that were replaced with other lines. One of the counts may be 0.
struct LineChange
{
    int before; ///< the first replaced line; lines are counted from 0
    int gone;   ///< number of replaced lines
    int after;  ///< the first new line, in the new text
    int come;   ///< number of new lines
};

/// Returns the smallest set of changes that turns `before` into `after`, in ascending order. The
/// time is proportional to the length of the texts and to the square of the number of changed
/// lines. Therefore, if the texts differ in many lines, all lines between the first and the last
/// difference are returned as one change.
QVector<LineChange> lineChanges(const TextLines& before, const TextLines& after);

} // namespace workbench
