#pragma once

#include <QStringList>

namespace workbench {

/// Opens every page and dialog of the library on a copy of the project and leaves a picture of each
/// in the folder, which is made if it is missing, in the language of the desktop, light and dark.
/// Needs a QApplication, whose pixel ratio the pictures have. Returns the files; throws
/// std::runtime_error if the project cannot be read or a file cannot be written.
QStringList takeSnapshots(const QString& project, const QString& folder);

} // namespace workbench
