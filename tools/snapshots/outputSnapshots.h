#pragma once

class VKD_H_ZOBDoc;

namespace workbench {

class SnapshotAlbum;

/// Adds screenshots of all kinds of output pages, with and without a preview of the model.
void addOutputSnapshots(SnapshotAlbum& album, VKD_H_ZOBDoc* document);

} // namespace workbench
