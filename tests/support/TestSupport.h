#pragma once

#include <QString>
#include <QtTest>

#include <functional>

/// The test program fails if it logs a warning that the test did not announce by
/// QTest::ignoreMessage(). Use PLIB_TEST_MAIN instead of QTEST_GUILESS_MAIN, and
/// WidgetTestSupport.h for tests of widgets.
namespace testsupport {

int run(QObject* test, int argc, char* argv[]);

/// Write or read a whole file that the test has created. End the process if this fails.
void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// A QString in a row of test data, convertible from UTF-8 literals.
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

/// Checks the function with each line "text => result" of `cases`.
void compareCases(const std::function<QString(const QString&)>& function, const char* cases);

/// Adds the named columns of a data function. Its call operator adds a row with a name and values.
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
