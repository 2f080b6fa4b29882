#pragma once

#include "table/columnWidths.h"

#include <QObject>

class DesignParameterTable;

namespace plib {

/// Gives the room of a wide page to the columns of its table, whose child it is, first to those
/// whose texts would be wrapped. A column that the user has dragged keeps its width.
class ColumnRoom : public QObject
{
    Q_OBJECT

public:
    /// The current widths of the columns are their initial widths.
    explicit ColumnRoom(DesignParameterTable* table);

    /// Measures the texts of these rows and shares the room again if a column needs more. The
    /// heights of the rows must be updated afterwards if this returns true.
    bool measure(int firstRow, int lastRow);
    /// Forgets what was measured.
    void reset();

    bool eventFilter(QObject* viewport, QEvent* event) override;

private:
    bool share();
    void columnResized(int column, int before, int width);

    DesignParameterTable* m_table;
    std::vector<ColumnShare> m_columns;
    bool m_isSharing = false;
};

} // namespace plib
