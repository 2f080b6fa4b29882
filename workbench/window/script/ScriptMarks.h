#pragma once

#include "check/ScriptFinding.h"
#include "window/script/lineChanges.h"

namespace workbench {

/// The marks in a script view, apart from the selection.
struct ScriptMarks
{
    QVector<LineChange> changes; ///< since the previous script, in ascending order
    QVector<int> hits;           ///< positions of the words to find, in ascending order
    int hitLength = 0;
    int firstOfPlot = 0; ///< first line of the current plot
    int linesOfPlot = 0;
    QVector<ScriptFinding> findings; ///< in the order of the script

    /// Returns whether a line was not in the previous script.
    bool isChanged(int line) const;
    /// Returns the number of lines that were removed directly before this line and not replaced.
    int removedBefore(int line) const;
    bool isOfPlot(int line) const
    {
        return line >= firstOfPlot && line < firstOfPlot + linesOfPlot;
    }
    /// Returns the index of the first hit that begins at or after this position.
    int hitAt(int position) const;
    /// Returns the index of the first finding in this line or a later one.
    int findingAt(int line) const;
};

} // namespace workbench
