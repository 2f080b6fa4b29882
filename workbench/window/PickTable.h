#pragma once

#include <QtTableView.h>
#include <vkd_dbo_model.h>

#include <QSet>

class QStandardItemModel;

namespace workbench {

/// Load cases or combinations of a project, with a check box for each. Read-only while the choice
/// is not made by hand; what is checked then stays for later.
class PickTable : public vkd::properties::nextGen::QtTableView
{
    Q_OBJECT

public:
    enum Column { NumberColumn, TitleColumn };

    /// All rows are checked at first. Their order is kept.
    PickTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    QVector<int> numbers() const;
    /// The numbers of the rows that are checked.
    QVector<int> picked() const;
    QSet<int> leftOut() const;
    void setLeftOut(const QSet<int>& numbers);

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
    int heightOf(int rows) const;

    QStandardItemModel* m_model;
};

} // namespace workbench
