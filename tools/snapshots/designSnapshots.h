#pragma once

class VKD_H_ZOBDoc;

namespace workbench {

class SnapshotAlbum;

/// Adds screenshots of the design page, its cell editors and its dialogs. Changes the project.
/// Group dialogs for which the model has no groups are omitted.
void addDesignSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document);

} // namespace workbench
