#pragma once

#include <vkd_zob.h>

#include <QString>

#include <functional>

class QWidget;

namespace workbench {

/// Does what needs the project file at `path`, and does it again while another program holds the
/// file, for the deadline of the store at most. After half a second the user sees that, and can
/// cancel. `attempt` answers a VkdZobStatus and leaves things as they were if it fails. The result
/// is that of the last attempt, or VKD_ZOB_CANCELLED.
cd_error_t waitForStore(QWidget* parent, const QString& path,
                        const std::function<cd_error_t()>& attempt);

} // namespace workbench
