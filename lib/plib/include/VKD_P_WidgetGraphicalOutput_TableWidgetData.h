#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>

#include <memory>

class VKD_H_TableWidget;
class VKD_P_WidgetGraphicalOutput;
struct TableWidgetDataRecord;

/// Connects a host's table of load cases to an output page. When the table changes, the load case
/// rows of the page are updated. The host owns the object.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_TableWidgetData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_TableWidgetData();
    ~VKD_P_WidgetGraphicalOutput_TableWidgetData() override;

    /// The columns contain numbers, check boxes and titles. If the table has no check boxes or no
    /// titles, pass a negative number for this column. Neither `page` nor `table` is owned. This
    /// function does not set the rows of the page; reset() or the first change to the table does.
    /// Each change that affects the rows rebuilds the tree of the page, so fill a long table before
    /// this call.
    void setWidgets(VKD_P_WidgetGraphicalOutput* page, VKD_H_TableWidget* table, int numberColumn,
                    int checkColumn, int titleColumn);

public Q_SLOTS:
    /// Reads the load cases from the table and sets them as rows. Has no effect if the rows do not
    /// change.
    void reset();

private:
    std::unique_ptr<TableWidgetDataRecord> data;
};
