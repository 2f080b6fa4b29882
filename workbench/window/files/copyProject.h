#pragma once

#include <vkd_zob.h>

#include <QString>

#include <memory>

class QWidget;
class VKD_H_ZOBDoc;
class ZobFilePlace;

namespace workbench {

/// Reserves the path of a project file (see ZobFilePlace), and waits while another program is
/// writing to a project at this path. Returns the status of the ZobFilePlace, or VKD_ZOB_CANCELLED.
VkdStatus takePlace(QWidget* parent, const QString& path, std::unique_ptr<ZobFilePlace>* place);

/// Copies the last stored state of an open project to `path`. An existing file is replaced
/// atomically. Returns a VkdZobStatus. After a failure or cancellation, the file at `path` is
/// unchanged.
VkdStatus copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path);

} // namespace workbench
