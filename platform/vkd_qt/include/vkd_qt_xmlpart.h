#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// Returns a tagged string "<tag>value</tag>". Several tagged strings can be concatenated without
/// separators. The value may contain any UTF-16 code units and is restored exactly, except that a
/// null string becomes an empty string. The tag must consist of letters, digits and underscores.
VKD_QT_EXPORT QString vkd_qt_writeXMLpart(const QString& value, const QString& tag);

/// Returns the value of the first tagged string with this tag at or after `from`, or a null string
/// if there is none. A value that was found is never null. Tags that are not closed are skipped. If
/// a value was found and `next` is not null, `*next` is set to the position after the closing tag.
VKD_QT_EXPORT QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag,
                                         int* next = nullptr);
