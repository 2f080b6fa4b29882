#pragma once

#include "vkd_qt_export.h"

#include <QString>

/// Returns a text as one part "<tag>text</tag>"; parts are saved in one string without separators.
/// The text may contain any UTF-16 units and is restored exactly, except that a null text becomes
/// an empty one. The tag consists of letters, digits and underscores.
VKD_QT_EXPORT QString vkd_qt_writeXMLpart(const QString& value, const QString& tag);

/// Returns the text of the first part with this tag at or after `from`; null if there is none,
/// otherwise never null. Unclosed parts are skipped. If a part was found, `next`, unless null, is
/// set to the position after it.
VKD_QT_EXPORT QString vkd_qt_readXMLpart(const QString& xml, int from, const QString& tag,
                                         int* next = nullptr);
