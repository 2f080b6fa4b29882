#pragma once

#include <vkd_zob.h>

#include <QString>

namespace workbench {

/// A sentence for the user about why the store refuses a project file, or its place on the disk;
/// `status` is a VkdZobStatus. The file is only "it" in the sentence, so one that names it has to
/// stand before.
QString projectReason(const QString& path, cd_error_t status);

} // namespace workbench
