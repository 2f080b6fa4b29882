#pragma once

#include <QString>
#include <QtTest>

#include <functional>

/// Turns every warning that a test did not announce by QTest::ignoreMessage() into a failure of the
/// test program. Use PLIB_TEST_MAIN instead of QTEST_GUILESS_MAIN, and WidgetTestSupport.h for
/// widgets.
namespace testsupport {

int run(QObject* test, int argc, char* argv[]);

/// Write or read a whole file, or end the process; for files that a test creates.
void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// A text in a row of data.
struct Text : QString
{
    Text() = default;
    Text(const char* utf8)
        : QString(fromUtf8(utf8))
    {
    }
    Text(const QString& text)
        : QString(text)
    {
    }
};

/// Compares the results of the function for the texts in `cases`, which has lines of the form "text
/// => result".
void compareCases(const std::function<QString(const QString&)>& function, const char* cases);

/// The columns of a data function by name; a call adds a row with its name and its values.
template <typename... Values>
class Columns
{
public:
    template <typename... Names>
    explicit Columns(Names... names)
    {
        static_assert(sizeof...(Names) == sizeof...(Values));
        (QTest::addColumn<Values>(names), ...);
    }

    template <typename T>
    using Cell = std::conditional_t<std::is_same_v<T, QString>, Text, T>;

    void operator()(const char* name, const Cell<Values>&... values) const
    {
        (QTest::newRow(name) << ... << static_cast<const Values&>(values));
    }
};

} // namespace testsupport

using testsupport::Columns;
using testsupport::compareCases;

#define PLIB_TEST_MAIN(TestClass)                   \
    int main(int argc, char* argv[])                \
    {                                               \
        QCoreApplication application(argc, argv);   \
        TestClass test;                             \
        return testsupport::run(&test, argc, argv); \
    }
