#pragma once

#include <QString>
#include <QtTest>

#include <functional>

/// The test program fails if it logs a warning that the test has not declared with
/// QTest::ignoreMessage(). Use PLIB_TEST_MAIN instead of QTEST_GUILESS_MAIN, and
/// WidgetTestSupport.h for tests of widgets.
namespace testsupport {

/// The longest time in milliseconds that a test waits for something that must happen. It is long
/// enough for sanitizers on a slow and busy machine; only failures take that long.
constexpr int Patience = 60000;

int run(QObject* test, int argc, char* argv[]);

/// These functions write or read a whole file that belongs to the test. They terminate the process
/// on failure.
void writeFile(const QString& path, const QByteArray& bytes);
QByteArray readFile(const QString& path);

/// A QString for test data rows that is convertible from UTF-8 literals.
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

/// Checks the function for each line "text => result" in `cases`.
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
using testsupport::Patience;

#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, testsupport::Patience)
#undef QTRY_VERIFY2
#define QTRY_VERIFY2(condition, message) \
    QTRY_VERIFY2_WITH_TIMEOUT(condition, message, testsupport::Patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) \
    QTRY_COMPARE_WITH_TIMEOUT(actual, expected, testsupport::Patience)

#define PLIB_TEST_MAIN(TestClass)                   \
    int main(int argc, char* argv[])                \
    {                                               \
        QCoreApplication application(argc, argv);   \
        TestClass test;                             \
        return testsupport::run(&test, argc, argv); \
    }
