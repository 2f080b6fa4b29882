#pragma once

#include <VKD_H_TableWidget.h>
#include <ZobHandle.h>

#include <QSet>

namespace workbench {

/// The load cases of a project, each with a check box. The output page offers the checked load
/// cases.
class LoadCaseTable : public VKD_H_TableWidget
{
    Q_OBJECT

public:
    enum Column { NumberColumn, CheckColumn, TitleColumn };

    /// Lists the load cases of the project.
    LoadCaseTable(ZobHandle project, QWidget* parent);

    QSet<int> leftOutNumbers() const;
    void setLeftOutNumbers(const QSet<int>& numbers);

private:
    void addColumns();
    void addLoadCase(int number, const QString& title);
    int numberInRow(int row) const;
    QTableWidgetItem* checkInRow(int row) const { return item(row, CheckColumn); }
};

} // namespace workbench
