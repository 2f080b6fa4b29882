#pragma once

#include <QSet>
#include <QStringList>

class QTableView;

namespace workbench {

/// A table of numbered rows with check boxes, as ChoiceBar uses it.
class ChoiceTable
{
public:
    virtual ~ChoiceTable() = default;

    virtual QTableView* view() = 0;
    virtual int numberInRow(int row) const = 0;
    virtual QString titleInRow(int row) const = 0;
    /// Returns the kind of a row, for display; rows of the same kind have the same string.
    virtual QString kindInRow(int row) const = 0;
    /// Returns the numbers of the unchecked rows, and changes them in one step.
    virtual QSet<int> leftOutNumbers() const = 0;
    virtual void chooseAllBut(const QSet<int>& numbers) = 0;
};

} // namespace workbench
