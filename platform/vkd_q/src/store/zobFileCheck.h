#pragma once

#include "vkd_zob.h"

class ZobConnection;

/// Whether the connected file is a sound project of this version, and nothing else. `goOn` is asked
/// meanwhile. The result is a status, after its log line.
cd_error_t checkZobFile(ZobConnection& connection, const VkdGoOn& goOn);
