#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// Returns the name of a picture for a language, 0 German or 1 English: with "_0" or "_1" before
/// the extension if the resources contain such a file, or else the name itself.
VKD_QT_EXPORT QString vkd_qt_getFileNameWithLang(const QString& name, int language);
