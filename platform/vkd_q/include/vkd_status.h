#pragma once

#include <QString>

/// How an operation of the platform ended.
struct VkdStatus
{
    int code = 0;   ///< 0 if all of it was done; the operation documents the other codes
    QString reason; ///< of a failure: one line in the desktop's language, what failed and why

    bool isOk() const { return code == 0; }
};
