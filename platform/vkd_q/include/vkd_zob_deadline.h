#pragma once

#include "vkd_lib_value.h"

/// Returns the maximum time in ms that the store waits for another program's lock: setting 201, or
/// the default.
inline int vkd_zob_deadline()
{
    constexpr int Default = 5000;
    const int setting = vkd_lib_getvalue(VKD_SETTING_LOCK_DEADLINE);
    return setting > 0 ? setting : Default;
}
