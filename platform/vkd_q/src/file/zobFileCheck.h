#pragma once

#include "vkd_progress.h"
#include "vkd_status.h"

class ZobConnection;

/// Checks that the connected file is an undamaged project of a supported version and contains
/// nothing else. Calls `goOn` during the check. Failures are logged, unless the caller cancelled.
VkdStatus checkZobFile(ZobConnection& connection, const VkdGoOn& goOn);
