#pragma once

class QTableView;

namespace workbench {

/// Makes the rows of a table as high as a line of text with a check box.
void setRowsOneLineHigh(QTableView* table);

} // namespace workbench
