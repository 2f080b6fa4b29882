#pragma once

#include <QVector>

namespace workbench {

class TextLines;

/// Lines of a text that were replaced by others. One of the counts may be 0.
struct LineChange
{
    int before; ///< the first replaced line; lines are counted from 0
    int gone;   ///< number of replaced lines
    int after;  ///< the first new line, in the new text
    int come;   ///< number of new lines
};

/// Returns the smallest number of lines that turn `before` into `after`, in rising order. The time
/// grows with the length of the texts and with the square of the number of changed lines; so in
/// texts that differ in many lines, all lines between the first and the last difference are
/// returned as one change.
QVector<LineChange> lineChanges(const TextLines& before, const TextLines& after);

} // namespace workbench
