#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// Returns the file name of an image for a language, 0 for German or 1 for English. The result has
/// "_0" or "_1" before the extension if the resources contain such a file. Otherwise the result is
/// `name`.
VKD_QT_EXPORT QString vkd_qt_getFileNameWithLang(const QString& name, int language);
