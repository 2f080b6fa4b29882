#pragma once

class QString;

namespace workbench {

class MainWindow;
class SnapshotAlbum;

/// Adds two screenshots of the text output dialog of a window with a project: one with the proposed
/// choice, and one with the other buttons checked. `look` is the suffix of the file names.
void addTextOutputSnapshots(SnapshotAlbum& album, const MainWindow& window, const QString& look);

} // namespace workbench
