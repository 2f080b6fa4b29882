#pragma once

class VKD_H_ZOBDoc;

namespace workbench {

class SnapshotAlbum;

/// The design page, its cell editors and its dialogs. Changes the project.
void addDesignSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document);

} // namespace workbench
