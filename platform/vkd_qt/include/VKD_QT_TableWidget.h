#pragma once

#include "vkd_qt_export.h"
#include "vkd_qt_qt6.h"

#include <QTableWidget>

#include <set>

/// A QTableWidget that reports its selection by row. A row is selected if at least one of its cells
/// is selected.
class VKD_QT_EXPORT VKD_QT_TableWidget : public QTableWidget
{
    Q_OBJECT

public:
    VKD_QT_TableWidget(int rows, int columns, QWidget* parent = nullptr,
                       const char* name = nullptr);

    bool isRowSelected(int row) const;
    std::set<int> getSelectetRows() const;

protected:
    VKD_QT_DECLARE_VIEW_OPTIONS;
};
