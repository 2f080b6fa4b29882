#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// A sentence for the user about why a project file cannot be opened; `status` is a VkdZobStatus.
QString projectTrouble(const QString& path, cd_error_t status);

} // namespace workbench
