#include "TestSupport.h"

#include <vkd_lib_searchpath.h>
#include <vkd_lib_text.h>

#include <QTemporaryDir>

/// The search path and the texts.
class TestLibraryServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qunsetenv("VKD_SHARE");
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char* folder : {"one/sub", "two/texts"})
            QDir(m_folder->path()).mkpath(QString::fromLatin1(folder));
    }

    void searchPath_data()
    {
        // found: in the test's folder
        const Columns<QString, QString> row("name", "found");
        row("first folder wins", "both", "one/both");
        row("second folder", "second", "two/second");
        row("before the shipped one", "graphicaloutput.data", "two/graphicaloutput.data");
        row("with a folder", "sub/deep", "one/sub/deep");
        row("other letters", "Größe", "two/Größe");
        row("missing", "nowhere", "");
        row("a folder is no file", "sub", "");
        row("empty name", "", "");
    }

    void searchPath()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, found);
        for (const char* file : {"one/both", "two/both", "two/second", "two/graphicaloutput.data",
                                 "one/sub/deep", "two/Größe"})
            testsupport::writeFile(m_folder->filePath(QString::fromUtf8(file)), "x");
        const QByteArray base = m_folder->path().toUtf8() + '/';
        qputenv("VKD_SHARE", base + "missing::" + base + "one:" + base + "two/");
        const auto path = vkd_lib_searchpath(name.toUtf8(), 3);
        QCOMPARE(path.has_value(), !found.isEmpty());
        QCOMPARE(QByteArray::fromStdString(path.value_or("")),
                 found.isEmpty() ? QByteArray() : base + found.toUtf8());
    }

    void text_data()
    {
        const Columns<int, int, QByteArray, QString> row("textClass", "language", "key",
                                                         "expected");
        row("German", 0, 0, "ABC", "Größe");
        row("English", 0, 1, "ABC", "Size");
        row("other class", 4, 1, "ABC", "Four");
        row("first of duplicates", 1, 0, "DUP", "eins");
        row("key in Latin-1", 0, 1, "\xC4Q1", "Umlaut");
        row("blanks stay", 1, 1, "NUL", " none ");
        row("empty in one language", 1, 0, "NUL", "");
        row("unknown key", 0, 0, "XYZ", "");
        row("unknown language", 0, 2, "ABC", "");
    }

    void text()
    {
        QFETCH(const int, textClass);
        QFETCH(const int, language);
        QFETCH(const QByteArray, key);
        useTexts("# a|b|c|d\n\n0|ABC|Größe|Size\r\n4|ABC|Vier|Four\n1|DUP|eins|one\n"
                 "1|DUP|zwei|two\n0|ÄQ1|Umlaut|Umlaut\n1|NUL|| none ");
        QTEST(QString::fromStdString(vkd_lib_convtext(textClass, language, key)), "expected");
    }

    void badTextLine_data()
    {
        const Columns<QString> row("line");
        row("language missing", "0|BAD|German");
        row("one field too many", "0|BAD|German|English|more");
        row("class is no number", "O|BAD|German|English");
    }

    void badTextLine()
    {
        QFETCH(const QString, line);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("/p.txt:2: .")));
        useTexts("0|ONE|eins|one\n" + line.toUtf8() + "\n0|TWO|zwei|two\n");
        QCOMPARE(vkd_lib_convtext(0, 1, "ONE"), std::string("one"));
        QCOMPARE(vkd_lib_convtext(0, 1, "TWO"), std::string("two"));
        QCOMPARE(vkd_lib_convtext(0, 1, "BAD"), std::string());
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

private:
    /// Writes the file of the program "p", in a new place for each test, and selects it.
    void useTexts(const QByteArray& bytes)
    {
        testsupport::writeFile(m_folder->filePath(QStringLiteral("two/texts/p.txt")), bytes);
        qputenv("VKD_SHARE", m_folder->filePath(QStringLiteral("two")).toUtf8());
        vkd_lib_opentext("p");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

PLIB_TEST_MAIN(TestLibraryServices)
#include "tst_libraryServices.moc"
