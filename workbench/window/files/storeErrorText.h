#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// Returns a sentence that explains to the user why the store has refused a project file. `status`
/// is the VkdZobStatus of the failed operation. The sentence refers to the file as "it", so the
/// preceding sentence must mention the file.
QString storeErrorText(const QString& path, cd_error_t status);

} // namespace workbench
