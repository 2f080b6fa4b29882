#pragma once

#include "vkd_zob.h"

#include <QLoggingCategory>
#include <QString>

struct sqlite3;

Q_DECLARE_LOGGING_CATEGORY(lcZob)

/// The status that stands for what the last call on `connection` ran into.
cd_error_t zobStatus(sqlite3* connection, int sqliteCode);

/// Logs the one line that a failed operation owes ("cannot <action> <file>: <why>") and passes the
/// status on.
cd_error_t reportZob(cd_error_t status, const char* action, const QString& file,
                     const QString& detail = QString());
