#pragma once

class QString;

namespace workbench {

class MainWindow;
class SnapshotAlbum;

/// The dialog of the text output over a window with a project: as proposed, and with the other
/// buttons chosen. `look` is put behind the names.
void addTextOutputSnapshots(SnapshotAlbum& album, const MainWindow& window, const QString& look);

} // namespace workbench
