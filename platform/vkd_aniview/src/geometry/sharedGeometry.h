#pragma once

#include "geometry/ModelGeometry.h"

#include <vkd_progress.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <memory>

namespace vkd {
namespace aniview {

/// Returns the drawable model of the project; it is empty for a null handle. All views of the model
/// that was read last share one geometry. Returns null if `goOn` returned false. Sets `status`, if
/// given, to the status of readModel(), or to VKD_ZOB_CANCELLED.
std::shared_ptr<const ModelGeometry>
sharedGeometry(ZobHandle project, const VkdGoOn& goOn = VkdGoOn(), VkdStatus* status = nullptr);

} // namespace aniview
} // namespace vkd
