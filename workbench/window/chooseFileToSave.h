#pragma once

#include <QString>

class QWidget;

namespace workbench {

/// Asks where to save. A name without a suffix gets `suffix` before it is asked whether a file of
/// that name may be replaced. Empty if the user cancelled.
QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix);

} // namespace workbench
