#pragma once

#include "TestSupport.h"

#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QList>

using Records = QList<QByteArray>;

/// Counts the log messages of the category vkd.zob during its lifetime. Other messages are
/// forwarded.
class ZobLog
{
public:
    ZobLog();
    ~ZobLog();
    /// Returns the number of messages since the last call.
    int take();
    /// Returns the status of an operation that has logged exactly one message, otherwise -1.
    cd_error_t once(cd_error_t status) { return take() == 1 ? status : -1; }
};

cd_error_t put(int index, int key1, int key2, const QByteArray& record, int position);
/// Locks the project and appends more records than fit into the cache.
void beginLargeChange(int index);
/// Reads the sequence keyed by 1 and `key2`, and returns the status that ended it.
Records readAll(int index, int key2 = 1, cd_error_t* end = nullptr);
int openProject(const QString& path);
/// These functions create a project with these records, keyed by 1, 1, or read the records. The
/// project is closed before and after the call.
void makeProject(const QString& path, const Records& records);
Records readProject(const QString& path);
/// Returns records that do not fit into the store's cache together, so that some are written to the
/// file before the change is stored.
Records moreThanCache();
/// Changes the file using SQL, as another program could.
void changeByOther(const QString& path, const char* change);

namespace QTest {
/// Makes QtTest print the numbers if a comparison fails.
inline bool qCompare(cd_error_t actual, VkdZobStatus expected, const char* actualText,
                     const char* expectedText, const char* file, int line)
{
    return qCompare(actual, int(expected), actualText, expectedText, file, line);
}
} // namespace QTest
