#pragma once

class QTreeWidget;

namespace plib {

/// Sets the data roles of the captions and plots of an output tree (see
/// VKD_P_WidgetGraphicalOutput_Role.h). Does not emit signals. Rows already have data roles, which
/// they share (see RowLooks).
void publishRoles(QTreeWidget* tree);

} // namespace plib
