#pragma once

#include "table/columnWidths.h"

#include <QObject>

class DesignParameterTable;

namespace plib {

/// Gives the room of a wide page to the columns of its table, whose child it is. A column that the
/// user has dragged keeps its width.
class ColumnRoom : public QObject
{
    Q_OBJECT

public:
    /// The current widths of the columns are their initial widths.
    explicit ColumnRoom(DesignParameterTable* table);

    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    void share();
    void columnResized(int column, int before, int width);

    DesignParameterTable* m_table;
    std::vector<ColumnShare> m_columns;
    bool m_isSharing = false;
};

} // namespace plib
