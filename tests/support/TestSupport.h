#pragma once

#include <QString>
#include <QtTest>

/// Makes every warning that a test did not announce by QTest::ignoreMessage() a failure of the test
/// program. Use PLIB_TEST_MAIN in place of QTEST_GUILESS_MAIN, and WidgetTestSupport.h for widgets.
namespace testsupport {

int run(QObject* test, int argc, char* argv[]);

/// Writes or reads a whole file or ends the process; for files that a test makes for itself.
void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

} // namespace testsupport

#define PLIB_TEST_MAIN(TestClass)                   \
    int main(int argc, char* argv[])                \
    {                                               \
        QCoreApplication application(argc, argv);   \
        TestClass test;                             \
        return testsupport::run(&test, argc, argv); \
    }
