#pragma once

#include "SnapshotAlbum.h"

namespace workbench {

/// Opens every page and dialog on a copy of the project and saves a screenshot of each in the
/// folder, in the language of the desktop, with light and dark colours. Creates the folder if it is
/// missing. Needs a QApplication; the screenshots have its pixel ratio. Throws std::runtime_error
/// if the project cannot be read or a file cannot be written.
SnapshotAlbum takeSnapshots(const QString& project, const QString& folder);

} // namespace workbench
