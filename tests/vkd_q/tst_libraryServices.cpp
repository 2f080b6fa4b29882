#include "TestSupport.h"

#include <vkd_lib_searchpath.h>
#include <vkd_lib_text.h>
#include <vkd_lib_value.h>

#include <QTemporaryDir>

/// Tests the search path, the messages and the settings.
class TestLibraryServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCOMPARE(vkd_lib_convtext(0, 0, "ABC"), std::string()); // before any texts are opened
    }

    void init()
    {
        qunsetenv("VKD_SHARE");
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char* folder : {"one/sub", "two/texts"})
            QDir(m_folder->path()).mkpath(QString::fromLatin1(folder));
    }

    void searchPath()
    {
        for (const char* file : {"one/both", "two/both", "two/second", "two/graphicaloutput.data",
                                 "one/sub/deep", "two/Größe"})
            testsupport::writeFile(m_folder->filePath(QString::fromUtf8(file)), "x");
        const QString base = m_folder->path() + QLatin1Char('/');
        qputenv("VKD_SHARE", QStringLiteral("%1missing::%1one:%1two/").arg(base).toUtf8());
        const auto found = [&base](const QString& name) {
            const auto path = vkd_lib_searchpath(name.toUtf8(), 3);
            return QString::fromStdString(path.value_or("none")).remove(base);
        };
        compareCases(found, R"(
both => one/both
second => two/second
graphicaloutput.data => two/graphicaloutput.data
sub/deep => one/sub/deep
Größe => two/Größe
nowhere => none
sub => none
 => none
)");
    }

    void text()
    {
        useTexts("# a|b|c|d\n\n0|ABC|Größe|Size\r\n4|ABC|Vier|Four\n1|DUP|eins|one\n"
                 "1|DUP|zwei|two\n0|ÄQ1|Umlaut|Umlaut\n1|NUL|| none \n1|XYZ|drei\nx|XYZ|a|b",
                 {9, 10});
        const auto found = [](const QString& text) { // "class language key"
            const QStringList parts = text.split(QLatin1Char(' '));
            return QString::fromStdString(vkd_lib_convtext(parts[0].toInt(), parts[1].toInt(),
                                                           parts[2].toLatin1().constData()));
        };
        compareCases(found, R"(
0 0 ABC => Größe
0 1 ABC => Size
4 1 ABC => Four
1 0 DUP => eins
0 1 ÄQ1 => Umlaut
1 0 NUL =>
0 0 XYZ =>
0 2 ABC =>
0 -1 ABC =>
)");
        QCOMPARE(vkd_lib_convtext(1, 1, "NUL"), std::string(" none ")); // spaces are preserved
    }

    void missingTexts()
    {
        useTexts("0|ONE|eins|one\n");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("texts/nobody.txt")));
        vkd_lib_opentext("nobody");
        QCOMPARE(vkd_lib_convtext(0, 1, "ONE"), std::string());
        vkd_lib_opentext("p");
        QCOMPARE(vkd_lib_convtext(0, 1, "ONE"), std::string("one"));
    }

    void settings()
    {
        constexpr int Key = 4711;
        QCOMPARE(vkd_lib_getvalue(Key), 0); // the key has never been set
        vkd_lib_setvalue(Key, 5);
        QCOMPARE(vkd_lib_getvalue(Key), 5);
    }

private:
    /// For each test, writes the text file of the program "p" to a new folder and selects this
    /// program.
    void useTexts(const QByteArray& bytes, const QList<int>& faultyLines = {})
    {
        for (int number : faultyLines)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("p.txt:%1: ").arg(number)));
        testsupport::writeFile(m_folder->filePath(QStringLiteral("two/texts/p.txt")), bytes);
        qputenv("VKD_SHARE", m_folder->filePath(QStringLiteral("two")).toUtf8());
        vkd_lib_opentext("p");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

PLIB_TEST_MAIN(TestLibraryServices)
#include "tst_libraryServices.moc"
