#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <memory>

class VKD_H_TableWidget;
class VKD_P_WidgetGraphicalOutput;
struct TableWidgetDataRecord;

/// Connects a host's table of load cases to an output page, whose rows are updated when the table
/// changes. The host owns the object.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_TableWidgetData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_TableWidgetData();
    ~VKD_P_WidgetGraphicalOutput_TableWidgetData() override;

    /// The columns contain numbers, check boxes and titles. If the table has no check boxes or no
    /// titles, the respective column is negative. Neither `page` nor `table` is owned. The rows are
    /// set for the first time by reset() or by a change in the table. Each change that affects the
    /// rows rebuilds the tree of the page, so fill a long table before this call.
    void setWidgets(VKD_P_WidgetGraphicalOutput* page, VKD_H_TableWidget* table, int numberColumn,
                    int checkColumn, int titleColumn);

public Q_SLOTS:
    /// Reads the rows from the table. Has no effect if they equal the current rows.
    void reset();

private:
    std::unique_ptr<TableWidgetDataRecord> data;
};
