#pragma once

class QString;

namespace workbench {

class SnapshotAlbum;

/// The window on a project, its dialogs and its picking of groups, light and dark.
void addWindowSnapshots(SnapshotAlbum& album, const QString& project);

} // namespace workbench
