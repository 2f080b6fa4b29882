#pragma once

#include <QString>

class QWidget;

namespace workbench {

/// Asks where to save. A name without a suffix gets `suffix` before it is asked whether a file of
/// that name may be replaced. The project that is open may not be, and another name is asked for;
/// with an empty path every file may. Empty if the user cancelled.
QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix, const QString& openProject);

} // namespace workbench
