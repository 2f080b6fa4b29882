#pragma once

#include <QSet>
#include <QStringList>

class QTableView;

namespace workbench {

/// A table of numbered rows with check boxes, for use with ChoiceBar.
class ChoiceTable
{
public:
    virtual ~ChoiceTable() = default;

    virtual QTableView* view() = 0;
    virtual int numberInRow(int row) const = 0;
    virtual QString titleInRow(int row) const = 0;
    /// Returns the display name of the row's kind. Rows of the same kind have the same name.
    virtual QString kindInRow(int row) const = 0;
    /// These functions return or set the numbers of the unchecked rows. The setter makes a single
    /// change.
    virtual QSet<int> leftOutNumbers() const = 0;
    virtual void chooseAllBut(const QSet<int>& numbers) = 0;
};

} // namespace workbench
