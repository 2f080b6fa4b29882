#pragma once

#include "vkd_q_export.h"

/// The numbered integer settings of the suite, kept for the life of the process.
/// A setting that was never written reads 0. For the GUI thread only.
///
/// | key | meaning |
/// |---|---|
/// | 102 | language of the desktop: 0 German, 1 English |
/// | 108 | keyword language of a program block's head: 0 German, 1 English |
/// | 201 | how long a key pair is waited for when another program holds it, in ms; 0 means 5000 |
VKD_Q_EXPORT int vkd_lib_getvalue(int key);

/// Writes a setting; any key and any value are taken.
VKD_Q_EXPORT void vkd_lib_setvalue(int key, int value);
