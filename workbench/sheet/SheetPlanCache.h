#pragma once

#include "sheet/SheetPlanReader.h"

#include <QString>

#include <vector>

namespace workbench {

/// Caches the plan of a script that changes often. When the script changes, reading starts at a
/// mark before the first changed line. It stops at a mark after the last changed line if the reader
/// has the same state there as before.
class SheetPlanCache
{
public:
    /// `linesBetweenMarks` is the number of lines after which a mark is set.
    explicit SheetPlanCache(int linesBetweenMarks = 500);

    /// Returns the same plan as readSheetPlan(). The plan is valid until the next call.
    const SheetPlan& planOf(const QString& script);

private:
    /// The position at which a line begins, and the reader's progress there.
    struct Mark
    {
        int position;
        SheetPlanReader::Progress progress;
    };
    using Marks = std::vector<Mark>;

    Marks takeMarksAfter(int position);
    void read(const Marks& oldMarks, const SheetPlan& oldPlan, int moved);
    void finish(Marks::const_iterator mark, Marks::const_iterator end, const SheetPlan& oldPlan,
                int moved);

    const int m_linesBetweenMarks;
    QString m_script;
    SheetPlanReader m_reader;
    Marks m_marks{{0, {}}}; // sorted by position
};

} // namespace workbench
