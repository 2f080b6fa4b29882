#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// Returns a sentence for the user that explains why the store refuses a project file, for a
/// VkdZobStatus. The sentence calls the file "it", so the previous sentence must name the file.
QString storeErrorText(const QString& path, cd_error_t status);

} // namespace workbench
