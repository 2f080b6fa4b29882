#pragma once

class VKD_H_ZOBDoc;

namespace workbench {

class SnapshotAlbum;

/// Adds the design page, its cell editors and its dialogs. Changes the project. Group dialogs that
/// the model has no groups for are left out.
void addDesignSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document);

} // namespace workbench
