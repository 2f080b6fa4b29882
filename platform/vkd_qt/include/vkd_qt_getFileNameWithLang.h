#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// The form of a picture for a language, 0 German or 1 English: the name with "_0" or "_1" before
/// its extension, if the resources hold such a file, or else the name itself.
VKD_QT_EXPORT QString vkd_qt_getFileNameWithLang(const QString& name, int language);
