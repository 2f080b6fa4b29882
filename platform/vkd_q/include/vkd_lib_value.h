#pragma once

#include "vkd_q_export.h"

/// The numbers of the settings that this platform knows.
enum VkdSetting : int {
    VKD_SETTING_LANGUAGE = 102,      ///< language of the desktop: 0 German, 1 English
    VKD_SETTING_HEAD_LANGUAGE = 108, ///< keyword language of a program block's head, likewise
    VKD_SETTING_LOCK_DEADLINE =
        201 ///< how long another program's lock is waited for, in ms; 0: 5000
};

/// The numbered integer settings of the suite, kept for the life of the process. A setting that was
/// never written reads 0. For the GUI thread only.
VKD_Q_EXPORT int vkd_lib_getvalue(int key);

/// Writes a setting; any key and any value are taken.
VKD_Q_EXPORT void vkd_lib_setvalue(int key, int value);
