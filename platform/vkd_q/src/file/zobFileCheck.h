#pragma once

#include "vkd_progress.h"
#include "vkd_status.h"

class ZobConnection;

/// Checks that the connected file is an undamaged project of this version without anything else,
/// and calls `goOn` meanwhile. Failures are logged, unless the caller cancelled.
VkdStatus checkZobFile(ZobConnection& connection, const VkdGoOn& goOn);
