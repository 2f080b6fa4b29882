#pragma once

#include "geometry/ModelGeometry.h"

#include <vkd_progress.h>
#include <vkd_status.h>
#include <ZobHandle.h>

#include <memory>

namespace vkd {
namespace aniview {

/// Returns the geometry of the project's model. The geometry is empty for a null handle. All views
/// of the most recently read model share one geometry. Returns null if `goOn` returned false. If
/// `status` is not null, it receives the status of readModel(), or VKD_ZOB_CANCELLED.
std::shared_ptr<const ModelGeometry>
sharedGeometry(ZobHandle project, const VkdGoOn& goOn = VkdGoOn(), VkdStatus* status = nullptr);

} // namespace aniview
} // namespace vkd
