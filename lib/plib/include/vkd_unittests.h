#pragma once

#include "vkd_p_fea_export.h"

#include <QStringList>

/// The self-check of the installed library: it checks that the pictures of both languages are
/// found. Needs a QGuiApplication; must not be called while a QtTest test is running. It writes
/// VKD_P_Mix_UnitTest.log into the folder of the last argument of the form "LOGPATH:<folder>", in
/// upper or lower case, or into the root of the file system if there is none. If the log cannot be
/// written, its text is reported in the category vkd.selfcheck, and the result stays the same.
/// Returns 0 on success, otherwise 1. After a failure the language, setting 102, stays as the check
/// set it.
VKD_P_FEA_EXPORT int vkd_unittests(const QStringList& arguments);
