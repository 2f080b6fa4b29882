#pragma once

class QString;

namespace workbench {

class MainWindow;
class SnapshotAlbum;

/// Adds the dialog of the text output of a window with a project: with the proposed choice, and
/// with the other buttons chosen. `look` is the suffix of the names.
void addTextOutputSnapshots(SnapshotAlbum& album, const MainWindow& window, const QString& look);

} // namespace workbench
