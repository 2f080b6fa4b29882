#pragma once

#include "ModelGeometry.h"

#include <vkd_progress.h>

#include <memory>

namespace vkd {
namespace aniview {

/// What is drawn of the model of the project at this database index, nothing if it is below 1. It
/// is read and prepared once for all views that show the model read last. Null if `goOn`
/// answered false.
std::shared_ptr<const ModelGeometry> sharedGeometry(int index, const VkdGoOn& goOn = VkdGoOn());

} // namespace aniview
} // namespace vkd
