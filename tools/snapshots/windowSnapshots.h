#pragma once

class QString;

namespace workbench {

class SnapshotAlbum;

/// Adds screenshots of the window with a project, of its dialogs and of the design dock, in light
/// and dark colours.
void addWindowSnapshots(SnapshotAlbum& album, const QString& project);

} // namespace workbench
