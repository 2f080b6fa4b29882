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

/// For a function of a text with many cases of text and result: a line for each case that comes out
/// otherwise, so that nothing is to be left.
template <typename Function>
QString differences(std::initializer_list<QPair<Text, Text>> cases, const Function& function)
{
    QString lines;
    for (const auto& one : cases) {
        const QString result = function(QString(one.first));
        if (result != one.second)
            lines += QStringLiteral("\n%1: %2 instead of %3").arg(one.first, result, one.second);
    }
    return lines;
}

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
using testsupport::differences;

#define PLIB_TEST_MAIN(TestClass)                   \
    int main(int argc, char* argv[])                \
    {                                               \
        QCoreApplication application(argc, argv);   \
        TestClass test;                             \
        return testsupport::run(&test, argc, argv); \
    }
