#pragma once

#include "TestSupport.h"

#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QList>

using Records = QList<QByteArray>;

/// Counts the log lines of the category vkd.zob while it lives; any other line goes its way.
class ZobLog
{
public:
    ZobLog();
    ~ZobLog();
    /// The number of lines since the last question.
    int take();
    /// The status of an operation that has to have written exactly one line, otherwise -1.
    cd_error_t once(cd_error_t status) { return take() == 1 ? status : -1; }
};

cd_error_t put(int index, int key1, int key2, const QByteArray& record, int position);
/// Reads the sequence under 1 and `key2`, and the status that ended it.
Records readAll(int index, int key2 = 1, cd_error_t* end = nullptr);
int openProject(const QString& path);
/// Makes a project with these records under 1, 1, or reads them; it is closed before and after.
void makeProject(const QString& path, const Records& records);
Records readProject(const QString& path);

namespace QTest {
/// Lets a failing comparison show the numbers.
inline bool qCompare(cd_error_t actual, VkdZobStatus expected, const char* actualText,
                     const char* expectedText, const char* file, int line)
{
    return qCompare(actual, int(expected), actualText, expectedText, file, line);
}
} // namespace QTest
