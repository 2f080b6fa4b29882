#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// Returns a sentence that explains to the user why the store refuses a project file with this
/// VkdZobStatus. The sentence refers to the file as "it", so the preceding sentence must mention
/// the file.
QString storeErrorText(const QString& path, cd_error_t status);

} // namespace workbench
