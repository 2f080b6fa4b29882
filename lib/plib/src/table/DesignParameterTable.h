#pragma once

#include <VKD_H_TableWidget.h>

/// The table of the design parameter page: five columns, one row for each set of parameters. It
/// only displays text and does not store data. DesignParameter fills it and handles its signals.
class DesignParameterTable : public VKD_H_TableWidget
{
    Q_OBJECT

public:
    /// The columns. The column ids are the same numbers.
    enum Column {
        Selection = 0,
        Type = 1,
        DirectionAndDistance = 2,
        Reinforcement = 3,
        CrackControl = 4,
        ColumnCount
    };

    explicit DesignParameterTable(QWidget* parent);

    /// These functions fit the widths of the columns and the heights of the rows to the texts of
    /// rows that have changed, or to all texts. In a very long table, all rows have the height
    /// required for the longest texts, and only the first rows determine the widths.
    void fitRows(int first, int last);
    void fitAllRows();
    /// Fits only the heights of rows.
    void fitHeights(int first, int last);
    /// Scrolls to a row, even if it has just been added.
    void bringIntoView(int row);

Q_SIGNALS:
    void signal_newClicked();
    void signal_delClicked();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};
