#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// A text as one part "<tag>text</tag>", to be kept in a string of such parts, one behind the other
/// with nothing between. The text may hold any UTF-16 units and comes back unit by unit; a null
/// text comes back empty. The tag is a word of letters, digits and underscores.
VKD_QT_EXPORT QString vkd_qt_writeXMLpart(const QString& value, const QString& tag);

/// The text of the first part with this tag that begins at `from` or behind; null if there is none,
/// and never null if there is. Parts that are not closed are passed over. `next`, which may be
/// null, gets the position behind the part, and is left as it is if there is none.
VKD_QT_EXPORT QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag,
                                         int* next = nullptr);
