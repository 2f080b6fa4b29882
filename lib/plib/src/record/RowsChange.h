#pragma once

#include "record/DesignParameterData.h"

#include <QString>

#include <set>

namespace plib {

using DesignRowList = std::vector<DesignParameterRow>;

/// A change of the rows as a value: the rows that differ, before and after it. All rows above and
/// below them are the same. Undo puts `before` in the place of `after`.
struct RowsChange
{
    int first = 0;
    DesignRowList before;
    DesignRowList after;

    bool isEmpty() const { return before.empty() && after.empty(); }
};

/// Returns whether two rows have the same groups, in the same order, and the same parameters, bit
/// by bit.
bool haveSameContent(const DesignParameterRow& a, const DesignParameterRow& b);

/// Returns the difference between two states of the rows. The caller may know that the first `head`
/// and the last `tail` rows are the same; they are not compared then.
RowsChange changeBetween(const DesignRowList& before, const DesignRowList& after,
                         std::size_t head = 0, std::size_t tail = 0);

/// Replaces `count` rows from `first` on.
void replaceRows(DesignRowList& rows, int first, int count, const DesignRowList& by);

/// A user's step that changes rows.
enum class RowsStep {
    Groups,
    Type,
    DirectionAndDistance,
    Reinforcement,
    CrackControl,
    New,
    Delete,
    Up,
    Down,
    Paste,
    Duplicate,
};

/// Returns the name of a step for the user, such as "Reinforcement of row 3". Rows are counted from
/// 1 in texts.
QString nameOf(RowsStep step, const std::set<int>& rows);

} // namespace plib
