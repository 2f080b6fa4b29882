#include "TestSupport.h"

#include <StructLineEdit.h>
#include <vkd_h_numberText.h>
#include <vkd_lib_value.h>

#include <QRandomGenerator>

#include <cmath>
#include <cstring>
#include <limits>

using State = VkdNumberState;
Q_DECLARE_METATYPE(VkdNumberState)

namespace {
constexpr int German = 0, English = 1;
constexpr double NotSet = -99999.0;
const float Nan = std::numeric_limits<float>::quiet_NaN();
const float Infinity = std::numeric_limits<float>::infinity();
constexpr int Codes[] = {5, 1001, 1021, 1023, 1024, 1026, 1092, -1};
} // namespace

/// What a number field reads and shows, without the field.
class TestNumberText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { vkd_lib_setvalue(VKD_SETTING_LANGUAGE, German); }

    void reads_data()
    {
        const Columns<QString, int, State, double> columns("text", "code", "state", "value");
        const auto row = [&columns](const char* name, const QString& text, int code, State state,
                                    double value = NotSet) {
            columns(name, text, code, state, value);
        };
        const auto accept = [row](const char* text, double value, int code = 1001) {
            row(text, QString::fromUtf8(text), code, State::Accepted, value);
        };
        const auto refuse = [row](const char* text, State state, int code = 1001) {
            row(qPrintable(QStringLiteral("refused: ") + QString::fromUtf8(text)),
                QString::fromUtf8(text), code, state);
        };
        accept("12,5", 12.5);
        accept("12.5", 12.5);
        accept("1.234", 1.234);
        accept(" 12 ", 12);
        accept("\u00a012,5\u202f", 12.5);
        accept("+3", 3);
        accept(".5", 0.5);
        accept("5,", 5);
        accept("1e3", 1000);
        accept("1,5E-3", 0.0015);
        accept("\u22122,5", -2.5);
        accept("-99998", -99998);
        accept("1e-60", 0);
        accept("30", 0.03, 1024);
        accept("180", M_PI, 5);
        row("empty", QString(), 1001, State::Accepted);
        row("blanks", QStringLiteral(" \t\u00a0"), 1001, State::Accepted);
        refuse("1.234,5", State::TwoDecimalSigns);
        refuse("1.234.567", State::TwoDecimalSigns);
        refuse("1..2", State::TwoDecimalSigns);
        for (const char* text :
             {"abc", "nan", "inf", "0x1p3", "0x10", "1 234", "12 mm", "1\u00a0234", "1'234", "--1",
              "1e3,5", "12a", "\u0661\u0662", "\uff11", "1\n2"})
            refuse(text, State::NoNumber);
        row("a long text", QString(1000000, QLatin1Char('1')), 1001, State::NoNumber);
        for (const char* text : {"-", "+", ",", "-.", "1e", "1e-", "2,e+"})
            refuse(text, State::Incomplete);
        refuse("1e400", State::TooLarge, -1);
        refuse("1e39", State::TooLarge, -1);
        refuse("-1e400", State::TooSmall, -1);
        refuse("99999,1", State::TooLarge);
        refuse("-99999", State::TooSmall);
        refuse("-1", State::TooSmall, 1021);
    }

    void reads()
    {
        QFETCH(const QString, text);
        QFETCH(const int, code);
        for (int language : {German, English}) {
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
            const VkdNumberReading reading =
                vkd_h_readNumber(text, vkd_h_defaultStructLineEdit(code));
            QTEST(reading.state, "state");
            QTEST(reading.value, "value");
            QVERIFY(!std::signbit(reading.value) || reading.value < 0);
        }
        QCOMPARE(vkd_h_readNumber(QStringLiteral("-0"), {}).value, 0.0);
        QVERIFY(!std::signbit(vkd_h_readNumber(QStringLiteral("-0"), {}).value));
    }

    /// A description as callers fill it in place.
    void description()
    {
        const QString comma(QLatin1Char(',')), dash(QLatin1Char('-'));
        StructLineEdit given{2, 1026, 0.0, 0.4F, NotSet, 0.1F, 2048, {}, comma, {}, {dash}};
        const auto state = [&given](const char* text) {
            return vkd_h_readNumber(QLatin1String(text), given).state;
        };
        QCOMPARE(state("0.1"), State::Accepted); // as a double it is below the float limit
        QCOMPARE(state("0.4"), State::Accepted);
        QCOMPARE(state("0.41"), State::TooLarge);
        QCOMPARE(state("0.09"), State::TooSmall);
        QCOMPARE(state(" - "), State::Accepted);
        QVERIFY(vkd_h_isNotSet(double(-99999.001F), given)); // the same float
        given.flags = 0;
        QCOMPARE(state(""), State::Missing);
        QCOMPARE(state("-"), State::Missing);
        QCOMPARE(vkd_h_suffixText(given), QStringLiteral("mm"));
    }

    void shows_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        const auto row = [](float value, int code, const char* english, const char* german) {
            QTest::addRow("%g in %d", double(value), code)
                << value << code << QString::fromLatin1(english) << QString::fromLatin1(german);
        };
        row(-99999.0F, 1001, "", "");
        row(0.25F, 1026, "0.25", "0,25");
        row(0.2F, 1026, "0.20", "0,20");
        row(0.125F, 1026, "0.125", "0,125");
        row(0.0004F, 1026, "0.0004", "0,0004");
        row(5.2359877F, 1021, "5.23599", "5,23599");
        row(0.035F, 1024, "35.0", "35,0");
        row(0.0333333F, 1024, "33.3333", "33,3333");
        row(1.57079633F, 5, "90.0", "90,0");
        row(10.0F, 1023, "10", "10");
        row(12.7F, 1023, "12.7", "12,7");
        row(1234567.0F, -1, "1234567", "1234567");
        row(-0.0F, 1001, "0.000", "0,000");
        row(1e-20F, 1001, "1e-20", "1e-20");
        row(2.5e30F, 1001, "2.5e+30", "2,5e+30");
        row(Nan, 1001, "nan", "nan");
        row(-Infinity, 1001, "-inf", "-inf");
    }

    void shows()
    {
        QFETCH(const float, value);
        QFETCH(const int, code);
        const StructLineEdit description = vkd_h_defaultStructLineEdit(code);
        QTEST(vkd_h_numberText(double(value), description), "german");
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English);
        QTEST(vkd_h_numberText(double(value), description), "english");
    }

    /// What is shown reads as the value, to six significant digits, whatever float it is.
    void shownTextReads()
    {
        QRandomGenerator random(15);
        for (int i = 0; i < 40000; ++i) {
            const quint32 bits = random.generate();
            float value = 0;
            std::memcpy(&value, &bits, sizeof value);
            StructLineEdit description = vkd_h_defaultStructLineEdit(Codes[i % 8]);
            description.maximum = 1e30;
            description.minimum = -1e30;
            if (!(std::fabs(value) < 1e30F) || vkd_h_isNotSet(double(value), description))
                continue;
            const QString text = vkd_h_numberText(double(value), description);
            const VkdNumberReading reading = vkd_h_readNumber(text, description);
            const double error = std::fabs(reading.value - double(value));
            const double allowed = 5.01e-6 * std::fabs(double(value)) + 1e-44;
            QVERIFY2(reading.state == State::Accepted && error <= allowed, qPrintable(text));
        }
    }
};

PLIB_TEST_MAIN(TestNumberText)
#include "tst_numberText.moc"
