#pragma once

class QString;

namespace workbench {

class SnapshotAlbum;

/// Adds the window with a project, its dialogs and the picking of groups, in light and dark
/// colours.
void addWindowSnapshots(SnapshotAlbum& album, const QString& project);

} // namespace workbench
