#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <memory>

class VKD_H_TableWidget;
class VKD_P_WidgetGraphicalOutput;
struct TableWidgetDataRecord;

/// Binds a host's table of load cases to an output page: its rows follow the table. Owned by the
/// host.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_TableWidgetData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_TableWidgetData();
    ~VKD_P_WidgetGraphicalOutput_TableWidgetData() override;

    /// The columns of numbers, of check boxes and of titles; the last two may be negative for a
    /// table without them. Neither `page` nor `table` is owned. The rows come with the first change
    /// in the table, or with reset(). Each change that gives other rows fills the tree of the page
    /// anew, so a table of many rows is better filled before.
    void setWidgets(VKD_P_WidgetGraphicalOutput* page, VKD_H_TableWidget* table, int numberColumn,
                    int checkColumn, int titleColumn);

public Q_SLOTS:
    /// Takes the rows from the table. Rows equal to those before change nothing.
    void reset();

private:
    std::unique_ptr<TableWidgetDataRecord> data;
};
