#pragma once

#include "window/choice/ChoiceTable.h"

#include <QtTableView.h>
#include <vkd_dbo_model.h>

class QStandardItemModel;

namespace workbench {

/// Load cases or combinations of a project, each with a check box. While a rule selects them, the
/// table is read-only and shows the result; the individual choice is preserved.
class PickTable : public vkd::properties::nextGen::QtTableView, public ChoiceTable
{
    Q_OBJECT

public:
    enum Column { NumberColumn, TitleColumn };

    /// All rows are checked initially. The order of `rows` is preserved.
    PickTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    QVector<int> numbers() const;
    /// Returns the rows with these numbers, in the order of the table.
    QVector<vkd::dbo::LoadCase> rowsOf(const QVector<int>& numbers) const;
    /// Returns the numbers of the load cases or combinations in the individual choice.
    QVector<int> picked() const;
    /// Returns the numbers of the load cases or combinations that are not in the individual choice.
    QSet<int> leftOut() const { return m_showsRule ? m_leftOut : shownAsLeftOut(); }
    /// Sets the individual choice without a signal.
    void setLeftOut(const QSet<int>& numbers);

    /// These functions show the individual choice or the result of a rule. They do not emit a
    /// signal.
    void showPicked();
    void showRule(const QVector<int>& numbers);

    /// Returns a size with the height of a few rows. The dialog may make the table taller.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QTableView* view() override { return this; }
    int numberInRow(int row) const override;
    QString titleInRow(int row) const override;
    QString kindInRow(int row) const override;
    QSet<int> leftOutNumbers() const override { return leftOut(); }
    void chooseAllBut(const QSet<int>& numbers) override;

Q_SIGNALS:
    /// Emitted once for each change by the user.
    void changed();

protected:
    /// Adds a column of widgets after the other columns.
    void addWidgetColumn(const QString& title, const QVector<QWidget*>& widgets);
    int rowCount() const;

private:
    QSet<int> shownAsLeftOut() const;
    void showAsLeftOut(const QSet<int>& numbers);
    int heightOf(int rows) const;

    QStandardItemModel* m_model;
    bool m_showsRule = false;
    QSet<int> m_leftOut; ///< unchecked in the individual choice while a rule is shown
};

} // namespace workbench
