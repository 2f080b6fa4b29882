#pragma once

#include "vkd_progress.h"
#include "vkd_status.h"

class ZobConnection;

/// Whether the connected file is a sound project of this version, and nothing else. `goOn` is asked
/// meanwhile. Whatever fails has written its log line, unless it was cancelled.
VkdStatus checkZobFile(ZobConnection& connection, const VkdGoOn& goOn);
