#pragma once

class VKD_H_ZOBDoc;

namespace workbench {

class SnapshotAlbum;

/// Adds the design page, its cell editors and its dialogs. Changes the project. Leaves
/// out group dialogs for which the model has no groups.
void addDesignSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document);

} // namespace workbench
