#pragma once

#include "record/DesignParameterData.h"

#include <QStringList>

#include <set>

namespace plib {

using DesignRowList = std::vector<DesignParameterRow>;

/// A change to the rows as a value, which contains the rows that differ, before and after the
/// change. The rows above and below them are identical. Undo replaces `after` with `before`.
struct RowsChange
{
    int first = 0;
    DesignRowList before;
    DesignRowList after;

    bool isEmpty() const { return before.empty() && after.empty(); }
};

/// Returns whether two rows have the same groups in the same order and bitwise identical
/// parameters.
bool haveSameContent(const DesignParameterRow& a, const DesignParameterRow& b);

/// Returns the difference between two states of the rows. If the caller knows that the first `head`
/// and the last `tail` rows are identical, these rows are not compared.
RowsChange changeBetween(const DesignRowList& before, const DesignRowList& after,
                         std::size_t head = 0, std::size_t tail = 0);

/// Replaces `count` rows, starting at `first`, with the rows in `by`.
void replaceRows(DesignRowList& rows, int first, int count, const DesignRowList& by);

/// A user action that changes rows.
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

/// Returns the name of a step, such as "Reinforcement of row 3", for stepText(). Row numbers in the
/// name start at 1.
QStringList nameOf(RowsStep step, const std::set<int>& rows);

} // namespace plib
