#pragma once

#include <QString>

/// The result of an operation of the platform.
struct VkdStatus
{
    int code = 0;   ///< 0 for success; the operation documents its other codes
    QString reason; ///< failed operation and its cause, one line in the desktop's language

    bool isOk() const { return code == 0; }
};
