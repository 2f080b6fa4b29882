#pragma once

#include <QString>
#include <QtTest>

#include <functional>

/// Makes every warning that a test did not announce by QTest::ignoreMessage() a failure of the test
/// program. Use PLIB_TEST_MAIN in place of QTEST_GUILESS_MAIN, and WidgetTestSupport.h for widgets.
namespace testsupport {

int run(QObject* test, int argc, char* argv[]);

/// Writes or reads a whole file or ends the process; for files that a test makes for itself.
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

/// Fails unless the function makes the result of each text in `cases`, a line "text => result"
/// each.
void compareCases(const std::function<QString(const QString&)>& function, const char* cases);

/// The columns of a data function by name; called, it adds a row with its name and its values.
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
