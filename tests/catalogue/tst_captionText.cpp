#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <catalogue/captionText.h>
#include <vkd_lib_text.h>
#include <vkd_lib_value.h>

/// Each message contains its own token, so that a caption shows the tokens of which it consists.
static QByteArray allTokens()
{
    QByteArray file =
        "0|ABC|Grund|Base\n0|GTX|kurz>lang>mehr|short>long>more\n0|GT0|>vorn|>front\n1|GTX|a>b|a>"
        "b\n"
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
        row("^GTX", " a>b");            // has no short form
        row("&GT0", " >front");         // ">" at the beginning is not a separator
        row("&BLK", "   ");             // a message may consist of spaces
        row("&XXX", "");                // a token without a message is empty, not null
        row("1 A&ABC", "25Ce  Base I"); // two spaces after a prepended message
        row(" - &ABC", " Base");
        row("1 -&XXX", " I"); // the suffix is added even without a base message
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

    /// The messages that each qualifier adds at the three positions.
    void qualifiers()
    {
        const testsupport::Texts texts(allTokens());
        vkd_lib_opentext("grav");
        vkd_lib_setvalue(102, 1);
        const auto added = [](const char* qualifiers, const char* field) {
            QStringList all;
            for (const QChar qualifier : QString::fromLatin1(qualifiers))
                all << plib::captionText(
                           QString::fromLatin1(field).replace(QLatin1Char('?'), qualifier))
                           .remove(QLatin1String(" Base"));
            return all.join(QLatin1Char(','));
        };
        QCOMPARE(added("123ABCOSTUVXYZabcstxyz", "?__&ABC"),
                 QStringLiteral(" I, II, III, 0ZHe, 0ZHe, 0ZHe, 19Oe, 1LNe, 1LTe, 19Ue, 0Z1e,"
                                " 0ZGe X, 0ZGe Y, 0ZGe Z, 0ZMe a, 0ZMe b, 0ZMe c, 1LAe, 1LBe,"
                                " 0ZLe x, 0ZLe y, 0ZLe z"));
        QCOMPARE(added("+12hst", "_?_&ABC"),
                 QStringLiteral(" 143e 1 + 2, 143e 1, 143e 2, 7ZHe, 7ZTe, 7ZTe"));
        QCOMPARE(added("ACDIRS", "__?&ABC"), QStringLiteral("25Ce ,27We ,271e ,20Ae ,27Qe ,27Ee "));
    }

    void keyText()
    {
        for (const char* text : {"&ABC", "@ND1", "1 A&ABC"})
            QVERIFY2(plib::isKeyText(QString::fromLatin1(text)), text);
        // An "@" is special only at the beginning.
        for (const char* text : {"", "&AB", "abc", "1 A&AB", "1 A@ABCD", "plain text"})
            QVERIFY2(!plib::isKeyText(QString::fromLatin1(text)), text);
    }
};

PLIB_TEST_MAIN(TestCaptionText)
#include "tst_captionText.moc"
