#pragma once

#include "vkd_p_fea_export.h"

#include <QStringList>

/// The self-check of the library in its surroundings: whether the pictures of both languages are
/// found. Needs a QGuiApplication. Writes VKD_P_Mix_UnitTest.log into the folder that the last
/// argument of the form "LOGPATH:<folder>" names, in any case, and into the root of the file system
/// if there is none. A log that cannot be written is reported in the category vkd.selfcheck, with
/// its text, and changes no result. 0 if all is well, else 1; after a failure the language, setting
/// 102, stays as the check had set it. Not to be called from within a running test of QtTest.
VKD_P_FEA_EXPORT int vkd_unittests(const QStringList& arguments);
