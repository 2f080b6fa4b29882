#pragma once

class QWidget;
class VKD_QT_Ok;

namespace workbench {

/// Creates the buttons OK and Cancel of a dialog.
VKD_QT_Ok* newOkAndCancel(QWidget* dialog);

} // namespace workbench
