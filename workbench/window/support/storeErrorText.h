#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// Returns a sentence for the user about the reason why the store refuses a project file, for a
/// VkdZobStatus. The sentence calls the file "it", so the sentence before has to name the file.
QString storeErrorText(const QString& path, cd_error_t status);

} // namespace workbench
