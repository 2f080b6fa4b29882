#pragma once

#include "table/columnWidths.h"

#include <QObject>

class DesignParameterTable;

namespace plib {

/// Distributes the extra width of a wide page among the columns of the table, starting with the
/// columns whose texts would otherwise be wrapped. A column that the user has resized keeps its
/// width. The object is a child of the table.
class ColumnRoom : public QObject
{
    Q_OBJECT

public:
    /// The current widths of the columns are their initial widths.
    explicit ColumnRoom(DesignParameterTable* table);

    /// Measures the texts of these rows and redistributes the width if a column needs more. If this
    /// returns true, the row heights must be updated afterwards.
    bool measure(int firstRow, int lastRow);
    /// Discards the measured widths.
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
