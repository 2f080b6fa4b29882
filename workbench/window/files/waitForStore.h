#pragma once

#include <vkd_zob.h>

#include <QString>

#include <functional>

class QWidget;

namespace workbench {

/// Calls `attempt`, which needs the project file at `path`. While another program locks the file,
/// repeats the call until the timeout of the store expires. After half a second, a dialog with a
/// Cancel button is shown. `attempt` returns a VkdZobStatus. If it fails, it must leave everything
/// unchanged. Returns the status of the last attempt, or VKD_ZOB_CANCELLED.
cd_error_t waitForStore(QWidget* parent, const QString& path,
                        const std::function<cd_error_t()>& attempt);

} // namespace workbench
