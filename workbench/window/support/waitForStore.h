#pragma once

#include <vkd_zob.h>

#include <QString>

#include <functional>

class QWidget;

namespace workbench {

/// Calls `attempt`, which needs the project file at `path`, and repeats this while another program
/// locks the file, at most for the deadline of the store. After half a second a dialog shows this
/// and offers Cancel. `attempt` returns a VkdZobStatus; if it fails, it must change nothing.
/// Returns the status of the last attempt, or VKD_ZOB_CANCELLED.
cd_error_t waitForStore(QWidget* parent, const QString& path,
                        const std::function<cd_error_t()>& attempt);

} // namespace workbench
