#pragma once

#include "SnapshotAlbum.h"

namespace workbench {

/// Opens every page and dialog with a copy of the project and saves screenshots of them in the
/// folder, in the language of the desktop and in light and dark colours. Creates the folder if it
/// is missing. Needs a QApplication, whose pixel ratio determines the pixel ratio of the
/// screenshots. Throws std::runtime_error if the project cannot be read or a file cannot be
/// written.
SnapshotAlbum takeSnapshots(const QString& project, const QString& folder);

} // namespace workbench
