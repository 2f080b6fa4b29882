#pragma once

#include "vkd_q_export.h"

#include <QString>

/// The result of an operation of the platform.
struct VkdStatus
{
    int code = 0;   ///< 0 for success; the operation documents its other codes
    QString reason; ///< failed operation and its cause, one line in the desktop's language

    bool isOk() const { return code == 0; }

    /// Returns the status of a failed operation. The reason becomes a single line.
    VKD_Q_EXPORT static VkdStatus failure(int code, const QString& reason);
};

/// Returns the text with each line break or other control character replaced by a blank. Names of
/// files and keys in messages may contain them.
VKD_Q_EXPORT QString vkd_oneLine(QString text);
