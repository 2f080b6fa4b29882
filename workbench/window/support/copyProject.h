#pragma once

#include <vkd_zob.h>

#include <QString>

#include <memory>

class QWidget;
class VKD_H_ZOBDoc;
class ZobFilePlace;

namespace workbench {

/// Takes the place of a project file, see ZobFilePlace, and waits while another program is writing
/// to a project that is already there. Returns the status of the place, or VKD_ZOB_CANCELLED.
cd_error_t takePlace(QWidget* parent, const QString& path, std::unique_ptr<ZobFilePlace>* place);

/// Copies an open project, as the last finished change left it, in place of the file at `path` or
/// as a new one, in one step. The result is VKD_ZOB_OK, VKD_ZOB_CANCELLED or why not; what was at
/// `path` is then as it was.
cd_error_t copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path);

} // namespace workbench
