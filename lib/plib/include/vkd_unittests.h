#pragma once

#include "vkd_p_fea_export.h"

#include <QStringList>

/// Runs the self-check of the installed library, which verifies that the images are found in both
/// languages. Requires a QGuiApplication and must not be called while a QtTest test is running.
/// Writes VKD_P_Mix_UnitTest.log to the folder in the last argument of the form "LOGPATH:<folder>"
/// (case-insensitive), or to the root of the file system if there is no such argument. If the log
/// cannot be written, its contents are written to the log category vkd.selfcheck; this does not
/// affect the result. Returns 0 on success, otherwise 1. After a failure, the language in setting
/// 102 is not restored.
VKD_P_FEA_EXPORT int vkd_unittests(const QStringList& arguments);
