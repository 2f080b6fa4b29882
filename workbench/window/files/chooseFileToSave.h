#pragma once

#include <QString>

class QWidget;

namespace workbench {

/// Asks for the name of a file to save. `suffix` is appended to a name without a suffix before the
/// user is asked whether to replace an existing file. The file `openProject`, if given, must not be
/// replaced; the user has to choose another name. Returns an empty string if the user cancels.
QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposal,
                         const QString& filters, const QString& suffix, const QString& openProject);

} // namespace workbench
