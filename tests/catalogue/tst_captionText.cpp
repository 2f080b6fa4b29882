#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <captionText.h>
#include <vkd_lib_text.h>
#include <vkd_lib_value.h>

/// Every text names its own token, so that a caption shows which tokens it was made of.
static QByteArray allTokens()
{
    QByteArray file =
        "0|ABC|Grund|Base\n0|GTX|kurz>lang>mehr|short>long>more\n0|GT0|>vorn|>front\n"
        "0|BLK|  |  \n0|ABD|a|a\n1|ABC|Grund eins|Base one\n4|ABC|Grund vier|Base four\n"
        "0|\xC3\x84"
        "BC|Umlaut|Umlaut\n";
    for (const char* key : {"25C", "27W", "271", "20A", "27Q", "27E", "0ZH", "0Z1", "0ZG", "0ZM",
                            "0ZL", "7ZH", "7ZT"})
        file += QByteArray("0|") + key + '|' + key + "d|" + key + "e\n";
    for (const char* key : {"19O", "1LN", "1LT", "19U", "1LA", "1LB", "143"})
        file += QByteArray("1|") + key + '|' + key + "d|" + key + "e\n";
    return file;
}

class TestCaptionText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void caption_data()
    {
        const Columns<QString, QString> columns("field", "expected");
        const auto row = [&columns](const char* field, const char* expected) {
            columns(field, field, expected);
        };
        row("&ABC", " Base");
        row("^ABC", " Base one");
        row("$ABC", " Base four");
        row("&ABC and more", " Base");
        row("&\xC3\x84"
            "BC",
            " Umlaut"); // keys are Latin-1
        row("&GTX", " long>more");
        row("&GT0", " >front");         // a mark in the first place parts nothing
        row("&BLK", "   ");             // blanks are a text
        row("&XXX", "");                // a token without a text: empty, not null
        row("1 A&ABC", "25Ce  Base I"); // two blanks behind a text that is put before
        row(" - &ABC", " Base");
        row("1 -&XXX", " I"); // a suffix stands even where the base text is missing
        row("__C&ABC", "27We  Base");
        row("__D&ABC", "271e  Base");
        row("__I&ABC", "20Ae  Base");
        row("__R&ABC", "27Qe  Base");
        row("__S&ABC", "27Ee  Base");
        row("2__&ABC", " Base II");
        row("3__&ABC", " Base III");
        row("A__&ABC", " Base 0ZHe");
        row("C__&ABC", " Base 0ZHe");
        row("O__&ABC", " Base 19Oe");
        row("S__&ABC", " Base 1LNe");
        row("T__&ABC", " Base 1LTe");
        row("U__&ABC", " Base 19Ue");
        row("V__&ABC", " Base 0Z1e");
        row("Y__&ABC", " Base 0ZGe Y");
        row("b__&ABC", " Base 0ZMe b");
        row("s__&ABC", " Base 1LAe");
        row("t__&ABC", " Base 1LBe");
        row("z__&ABC", " Base 0ZLe z");
        row("_+_&ABC", " Base 143e 1 + 2");
        row("_1_&ABC", " Base 143e 1");
        row("_2_&ABC", " Base 143e 2");
        row("_h_&ABC", " Base 7ZHe");
        row("_s_&ABC", " Base 7ZTe");
        row("_t_&ABC", " Base 7ZTe");
        row("Oh1&ABC", " Base 19Oe 7ZHe");
        row("X2R^ABC", "27Qe  Base one 0ZGe X 143e 2"); // third, base, first, second
        QTest::newRow("identifier") << QStringLiteral("@ND1 Nodes") << QString();
        QTest::newRow("identifier behind qualifiers") << QStringLiteral("@bc@ND1 x") << QString();
    }

    void caption()
    {
        const testsupport::Texts texts(allTokens());
        vkd_lib_opentext("grav");
        vkd_lib_setvalue(102, 1);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        const QString english = plib::captionText(field);
        QCOMPARE(english, expected);
        QCOMPARE(english.isNull(), expected.isNull());
        vkd_lib_setvalue(102, 0);
        if (expected.contains(QLatin1String("Base")))
            QVERIFY(plib::captionText(field).contains(QLatin1String("Grund")));
    }

    void keyText_data()
    {
        const Columns<QString, bool> columns("text", "expected");
        const auto row = [&columns](const char* text, bool expected) {
            columns(text, text, expected);
        };
        row("", false);
        row("&AB", false);
        row("&ABC", true);
        row("@ND1", true);
        row("abc", false);
        row("1 A&ABC", true);
        row("1 A&AB", false);   // six characters
        row("1 A@ABCD", false); // an "@" counts in the first place only
        row("plain text", false);
    }

    void keyText()
    {
        QFETCH(QString, text);
        QTEST(plib::isKeyText(text), "expected");
    }
};

PLIB_TEST_MAIN(TestCaptionText)
#include "tst_captionText.moc"
