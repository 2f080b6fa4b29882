#pragma once

#include "vkd_q_export.h"
#include "vkd_status.h"

#include <QByteArray>
#include <QString>

/// Reads a whole file. Returns VKD_ZOB_NO_FILE if the file cannot be opened, or VKD_ZOB_FAILED if
/// the system fails to read it; the reason is the system's error message. If it fails, `bytes` is
/// unchanged, so that callers never use a part of a file.
VKD_Q_EXPORT VkdStatus vkd_readFile(const QString& path, QByteArray* bytes);
