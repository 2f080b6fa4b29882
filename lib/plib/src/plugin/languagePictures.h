#pragma once

#include <vkd_lib_value.h>
#include <vkd_qt_getFileNameWithLang.h>

#include <QPixmap>

/// Return the variant of an image for the desktop language. The functions have the names that the
/// suite's developers use.
inline QString GET_FILENAME_WITH_LANG(const QString& name)
{
    return vkd_qt_getFileNameWithLang(name, vkd_lib_getvalue(VKD_SETTING_LANGUAGE));
}

inline QPixmap GET_PIXMAP_WITH_LANG(const QString& name)
{
    return QPixmap(GET_FILENAME_WITH_LANG(name));
}
