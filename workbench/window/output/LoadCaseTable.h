#pragma once

#include "window/choice/ChoiceTable.h"

#include <VKD_H_TableWidget.h>
#include <ZobHandle.h>

namespace workbench {

/// The load cases of a project, each with a check box. The output page offers the checked load
/// cases.
class LoadCaseTable : public VKD_H_TableWidget, public ChoiceTable
{
    Q_OBJECT

public:
    enum Column { NumberColumn, CheckColumn, TitleColumn };

    /// Lists the load cases of the project.
    LoadCaseTable(ZobHandle project, QWidget* parent);

    QTableView* view() override { return this; }
    int numberInRow(int row) const override;
    QString titleInRow(int row) const override;
    QString kindInRow(int row) const override;
    QSet<int> leftOutNumbers() const override;
    void chooseAllBut(const QSet<int>& numbers) override;
    /// Does the same as chooseAllBut(), but does not emit a signal.
    void setLeftOutNumbers(const QSet<int>& numbers);

Q_SIGNALS:
    /// Emitted once for each change by the user.
    void changed();

private:
    void addColumns();
    void addLoadCase(int number, const QString& title);
    QTableWidgetItem* checkInRow(int row) const { return item(row, CheckColumn); }
};

} // namespace workbench
