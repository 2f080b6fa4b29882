#include "TestSupport.h"

#include <record/designFields.h>
#include <record/designRecord.h>
#include <VKD_A_BarDiameterData.h>

#include <cmath>
#include <cstring>

using R = tagZOB_QUAD_RIM;
constexpr float Unset = -99999.0F;
constexpr float AlsoUnset = 99999.0F;

static quint32 bits(float value)
{
    quint32 word;
    std::memcpy(&word, &value, sizeof word);
    return word;
}

using Triple = QVector<float>;

class TestDesignRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultRecordByteForByte()
    {
        const quint32 no = 0xC7C34F80;
        const quint32 a = 0x3D0F5C29; // 0.035
        const quint32 b = 0x3D3851EC; // 0.045
        const quint32 halfPi = 0x3FC90FDB;
        const quint32 upper = bits(vkd_a_get_min_bar_type(6));
        const quint32 lower = bits(vkd_a_get_min_bar_type(5));
        quint32 expected[53] = {0xFFFFFFFF, 0,  1,     1,     11,    0,     halfPi, no,   0,
                                halfPi,     no, 0,     0,     0,     a,     b,      b,    a,
                                b,          b,  upper, upper, upper, lower, lower,  lower};
        std::fill(std::begin(expected) + 26, std::end(expected), no);
        expected[40] = 0; // reservedM
        const QByteArray words(reinterpret_cast<const char*>(expected), sizeof expected);
        const R record = plib::getDefaultMerPara(true);
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(&record), sizeof record).toHex(),
                 words.toHex());
        R other = plib::getDefaultMerPara(false);
        QCOMPARE(other.group, 0);
        QCOMPARE(other.type, 0);
        other.group = -1;
        other.type = 1;
        QVERIFY(std::memcmp(&other, &record, sizeof record) == 0);
    }

    void wordsAreInTheOrderOfTheRecord()
    {
        R record{};
        quint32 number = 0;
        for (const auto& word : vkd::plib::designparameter::RecordWords) {
            if (word.integer)
                record.*word.integer = qint32(number);
            else
                std::memcpy(&(record.*word.real), &number, sizeof number);
            ++number;
        }
        quint32 words[53] = {};
        std::memcpy(words, &record, sizeof words);
        for (quint32 i = 0; i < number; ++i)
            QCOMPARE(words[i], i);
    }

    void distances_data()
    {
        const Columns<Triple, Triple, Triple> row("stored", "edited", "storedAgain");
        row("defaults", {0.035F, 0.045F, 0.045F}, {0.035F, 0.045F - 0.035F, 0.0F},
            {0.035F, 0.045F, 0.045F});
        row("three layers", {1, 3, 7}, {1, 2, 4}, {1, 3, 7});
        row("second above first", {3, 1, 7}, {3, Unset, 6}, {3, Unset, Unset});
        row("third above second", {1, 3, 2}, {1, 2, Unset}, {1, 3, Unset});
        row("first not set", {Unset, 3, 4}, {Unset, Unset, 1}, {Unset, Unset, Unset});
        row("all not set", {Unset, Unset, Unset}, {Unset, Unset, Unset}, {Unset, Unset, Unset});
        row("zeros are distances", {0, 0, 0}, {0, 0, 0}, {0, 0, 0});
        row("not a number", {1, NAN, 3}, {1, Unset, Unset}, {1, Unset, Unset});
    }

    void distances()
    {
        QFETCH(Triple, stored);
        QFETCH(Triple, edited);
        QFETCH(Triple, storedAgain);
        QVERIFY(0.045F - 0.035F != 0.01F); // the default spacing must be exactly this number
        R record{};
        const auto triples = [&record] {
            return std::make_pair(Triple{record.hio, record.hioq, record.hioi},
                                  Triple{record.hiu, record.hiuq, record.hiui});
        };
        for (int i = 0; i < 6; ++i)
            record.*plib::fields::Distances[size_t(i)] = stored[i % 3];
        plib::toEditedForm(record, 0);
        QCOMPARE(triples(), std::make_pair(edited, edited));
        plib::toStoredForm(record, 0);
        QCOMPARE(triples(), std::make_pair(storedAgain, storedAgain));
    }

    void planeSystemsHaveNoLayers()
    {
        for (int kind : {9, 10, 19, 20}) {
            const bool plane = kind == 10 || kind == 19;
            R edited = plib::getDefaultMerPara(true);
            plib::toEditedForm(edited, kind);
            R stored = plib::getDefaultMerPara(true);
            plib::toStoredForm(stored, kind);
            for (plib::RealField field : plib::fields::Distances)
                QVERIFY((edited.*field == Unset && stored.*field == Unset) == plane);
        }
    }

    /// The results of cleaning these values in every field.
    void cleaning()
    {
        const float values[] = {0.0F, -0.0F, -1e-30F, AlsoUnset, 0.5F, NAN, INFINITY};
        const auto cleaned = [&](int offset) {
            QString states;
            for (float value : values) {
                R record{};
                float* field = reinterpret_cast<float*>(&record) + offset / 4;
                *field = value;
                plib::cleanRecord(record);
                const bool isKept = bits(*field) == bits(value);
                states += QLatin1Char(isKept ? '.' : bits(*field) == bits(Unset) ? 'x' : '?');
            }
            return states;
        };
        for (int offset = 20; offset < int(sizeof(R)); offset += 4) {
            const char* expected = "..xx..."; // minus zero is not negative
            if (offset < 56)                  // directions and reference
                expected = ".......";
            else if (offset == 80) // the first diameter
                expected = "xxx....";
            else if (offset > 80 && offset < 108) // the other diameters and the reserved field
                expected = "xxxx...";
            QVERIFY2(cleaned(offset) == QLatin1String(expected),
                     qPrintable(QString::number(offset)));
        }
        R foreign{};
        foreign.subId = 7;
        plib::cleanRecord(foreign);
        QCOMPARE(foreign.subId, 7);
        foreign.group = -5;
        plib::cleanRecord(foreign);
        QCOMPARE(foreign.subId, 0);
    }

    void equality()
    {
        const R record = plib::getDefaultMerPara(true);
        QList<int> ignored;
        for (int offset = 0; offset < int(sizeof record); offset += 4) {
            R other = record;
            reinterpret_cast<char*>(&other)[offset + 1] ^= 1;
            if (plib::recordsEqual(record, other))
                ignored << offset;
        }
        // group, subId, reservedD and reservedS, but not mark, although both 0 and 11 are valid
        QCOMPARE(ignored, QList<int>({0, 4, 104, 132}));
        R nan = record;
        nan.wko = NAN;
        QVERIFY(!plib::recordsEqual(nan, nan));
        R zero = record;
        R negativeZero = record;
        zero.rio = 0.0F;
        negativeZero.rio = -0.0F;
        QVERIFY(plib::recordsEqual(zero, negativeZero));
    }
};

PLIB_TEST_MAIN(TestDesignRecord)
#include "tst_designRecord.moc"
