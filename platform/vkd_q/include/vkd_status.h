#pragma once

#include "vkd_q_export.h"

#include <QString>

/// The result of an operation of the platform.
struct VkdStatus
{
    int code = 0;   ///< 0 for success; the operation documents its other codes
    QString reason; ///< failed operation and cause, one line in the desktop language

    bool isOk() const { return code == 0; }

    /// Returns the status of a failed operation. The reason is converted to a single line.
    VKD_Q_EXPORT static VkdStatus failure(int code, const QString& reason);
};

/// Returns the text with each newline or other control character replaced with a space. File names
/// and keys that are shown in messages may contain control characters.
VKD_Q_EXPORT QString vkd_oneLine(QString text);
