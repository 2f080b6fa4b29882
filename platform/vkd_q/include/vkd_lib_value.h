#pragma once

#include "vkd_q_export.h"

/// The numbers of the settings that this platform uses.
enum VkdSetting : int {
    VKD_SETTING_LANGUAGE = 102,      ///< language of the desktop: 0 German, 1 English
    VKD_SETTING_HEAD_LANGUAGE = 108, ///< keyword language of a program block's head; same values
    VKD_SETTING_LOCK_DEADLINE = 201  ///< ms to wait for a lock; 0: default of vkd_zob_deadline()
};

/// Returns one of the suite's numbered integer settings, or 0 if it was never written. Settings are
/// kept until the process ends. They may be used only in the GUI thread.
VKD_Q_EXPORT int vkd_lib_getvalue(int key);

/// Writes a setting; every key and value is accepted.
VKD_Q_EXPORT void vkd_lib_setvalue(int key, int value);
