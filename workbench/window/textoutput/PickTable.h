#pragma once

#include <QtTableView.h>
#include <vkd_dbo_model.h>

#include <QSet>

class QStandardItemModel;

namespace workbench {

/// Load cases or combinations of a project, with a check box for each. While a rule makes the
/// choice, the table is read-only and shows what comes out of it; what was checked by hand stays
/// for later.
class PickTable : public vkd::properties::nextGen::QtTableView
{
    Q_OBJECT

public:
    enum Column { NumberColumn, TitleColumn };

    /// All rows are checked at first. Their order is preserved.
    PickTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    QVector<int> numbers() const;
    /// The numbers of the rows that are checked by hand.
    QVector<int> picked() const;
    /// Those that are not checked by hand.
    QSet<int> leftOut() const { return m_showsRule ? m_leftOut : shownAsLeftOut(); }
    void setLeftOut(const QSet<int>& numbers);

    /// Neither tells of a change.
    void showPicked();
    void showRule(const QVector<int>& numbers);

    /// Room for a few rows; the dialog decides on more.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void changed();

protected:
    /// Adds a column of widgets behind the others.
    void addWidgetColumn(const QString& title, const QVector<QWidget*>& widgets);
    int rowCount() const;
    int number(int row) const;
    QString title(int row) const;

private:
    QSet<int> shownAsLeftOut() const;
    void showAsLeftOut(const QSet<int>& numbers);
    int heightOf(int rows) const;

    QStandardItemModel* m_model;
    bool m_showsRule = false;
    QSet<int> m_leftOut; ///< by hand, while a rule is shown
};

} // namespace workbench
