#pragma once

#include <VKD_H_TableWidget.h>

/// The table of the design parameter page: five columns, one row for each set of parameters. It
/// shows texts and holds no data; DesignParameter fills it and answers its signals.
class DesignParameterTable : public VKD_H_TableWidget
{
    Q_OBJECT

public:
    /// The columns, which have the same ids.
    enum Column {
        Selection = 0,
        Type = 1,
        DirectionAndDistance = 2,
        Reinforcement = 3,
        CrackControl = 4,
        ColumnCount
    };

    explicit DesignParameterTable(QWidget* parent);

    /// Gives a row, or all of them, the height that its texts need in columns as wide as they are.
    /// In a very long table rows keep the height that the longest texts need.
    void fitRow(int row);
    void fitRows();
    /// Scrolls so that a row is seen, one that was just added, too.
    void bringIntoView(int row);

Q_SIGNALS:
    void signal_newClicked();
    void signal_delClicked();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
};
