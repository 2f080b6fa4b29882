#include "TestSupport.h"

#include <StructLineEdit.h>
#include <vkd_h_numberText.h>
#include <vkd_lib_value.h>

namespace {
constexpr int German = 0, English = 1;
constexpr double NotSet = -99999.0;

/// Returns the number, preceded by the reason if it is refused.
QString told(const VkdNumberReading& reading)
{
    static const char* const states[] = {
        "",         "incomplete, ", "two signs, ", "no number, ", "too large, ", "too small, ",
        "missing, "};
    return QLatin1String(states[int(reading.state)]) + QString::number(reading.value, 'g', 12);
}

/// Returns a function that reads a number and checks that the result is the same in both languages.
auto reader(int code)
{
    return [code](const QString& text) {
        const StructLineEdit description = vkd_h_defaultStructLineEdit(code);
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, German);
        const QString german = told(vkd_h_readNumber(text, description));
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English);
        const QString english = told(vkd_h_readNumber(text, description));
        return german == english ? german : german + QLatin1Char('/') + english;
    };
}
} // namespace

/// Tests reading and formatting numbers without a number field.
class TestNumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads()
    {
        compareCases(reader(1001), "12,5 => 12.5\n"
                                   "1.234 => 1.234\n"
                                   "\u00a012,5\u202f => 12.5\n"
                                   "+3 => 3\n"
                                   ".5 => 0.5\n"
                                   "5, => 5\n"
                                   "1,5E-3 => 0.0015\n"
                                   "\u22122,5 => -2.5\n"
                                   "-99998 => -99998\n"
                                   "1e-60 => 0\n"
                                   "-0 => 0\n"
                                   " \t\u00a0 => -99999\n");
        QCOMPARE(reader(1024)(QStringLiteral("30")), QStringLiteral("0.03"));
        QCOMPARE(reader(5)(QStringLiteral("180")), QStringLiteral("3.14159265359"));
    }

    void refuses_data()
    {
        const Columns<int, QStringList> row("code", "texts");
        const auto list = [](const char* texts) {
            return QString::fromUtf8(texts).split(QLatin1Char('|'));
        };
        row("two signs", 1001, list("1.234,5|1.234.567|1..2"));
        row("no number", 1001,
            list("abc|nan|inf|0x1p3|0x10|1 234|12 mm|1\u00a0234|1'234|--1|1e3,5|12a|\u0661\u0662|"
                 "\uff11|1\n2") +
                QStringList(QString(1000000, QLatin1Char('1'))));
        row("incomplete", 1001, list("-|+|,|-.|1e|1e-|2,e+"));
        row("too large", -1, list("1e400|1e39"));
        row("too small", 1021, list("-1|-1e400|-99999"));
    }

    void refuses()
    {
        QFETCH(const QStringList, texts);
        QFETCH(const int, code);
        const QString wanted = QLatin1String(QTest::currentDataTag()) + QLatin1String(", -99999");
        for (const QString& text : texts)
            QVERIFY2(reader(code)(text) == wanted, qPrintable(text.left(20)));
    }

    /// Parses strings with a description that the caller has filled in.
    void description()
    {
        const QString comma(QLatin1Char(',')), dash(QLatin1Char('-'));
        StructLineEdit given{2, 1026, 0.0, 0.4F, NotSet, 0.1F, 2048, {}, comma, {}, {dash}};
        const auto read = [&given](const QString& text) {
            return told(vkd_h_readNumber(text, given)).section(QLatin1Char(','), 0, 0);
        };
        compareCases(read, R"(
0.1 => 0.1
0.4 => 0.4
0.41 => too large
0.09 => too small
 -  => -99999
)");
        QVERIFY(vkd_h_isNotSet(double(-99999.001F), given)); // the same float
        given.flags = 0;
        compareCases(read, R"(
 => missing
- => missing
)");
        QCOMPARE(vkd_h_suffixText(given), QStringLiteral("mm"));
    }

    void shows()
    {
        const struct
        {
            float value;
            int code;
            const char* english;
        } rows[] = {{-99999.0F, 1001, ""},          {0.25F, 1026, "0.25"},
                    {0.2F, 1026, "0.20"},           {0.125F, 1026, "0.125"},
                    {0.0004F, 1026, "0.0004"},      {5.2359877F, 1021, "5.23599"},
                    {0.035F, 1024, "35.0"},         {0.0333333F, 1024, "33.3333"},
                    {1.57079633F, 5, "90.0"},       {10.0F, 1023, "10"},
                    {12.7F, 1023, "12.7"},          {1234567.0F, -1, "1234567"},
                    {-0.0F, 1001, "0.000"},         {1e-20F, 1001, "1e-20"},
                    {2.5e30F, 1001, "2.5e+30"},     {float(qQNaN()), 1001, "nan"},
                    {-float(qInf()), 1001, "-inf"}, {0.10000002F, 1026, "0.10"}};
        for (const auto& row : rows) {
            const StructLineEdit description = vkd_h_defaultStructLineEdit(row.code);
            QString text = QLatin1String(row.english);
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English);
            QCOMPARE(vkd_h_numberText(double(row.value), description), text);
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, German);
            QCOMPARE(vkd_h_numberText(double(row.value), description),
                     text.replace(QLatin1Char('.'), QLatin1Char(',')));
        }
    }
};

PLIB_TEST_MAIN(TestNumberText)
#include "tst_numberText.moc"
