#include "TestSupport.h"

#include <designFields.h>
#include <designRecord.h>
#include <VKD_A_BarDiameterData.h>

#include <cstring>
#include <limits>

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

    void distances_data()
    {
        const Columns<Triple, Triple, Triple> row("stored", "edited", "storedAgain");
        const float nan = std::numeric_limits<float>::quiet_NaN();
        row("defaults", {0.035F, 0.045F, 0.045F}, {0.035F, 0.045F - 0.035F, 0.0F},
            {0.035F, 0.045F, 0.045F});
        row("three layers", {1, 3, 7}, {1, 2, 4}, {1, 3, 7});
        row("second above first", {3, 1, 7}, {3, Unset, 6}, {3, Unset, Unset});
        row("third above second", {1, 3, 2}, {1, 2, Unset}, {1, 3, Unset});
        row("first not set", {Unset, 3, 4}, {Unset, Unset, 1}, {Unset, Unset, Unset});
        row("all not set", {Unset, Unset, Unset}, {Unset, Unset, Unset}, {Unset, Unset, Unset});
        row("zeros are distances", {0, 0, 0}, {0, 0, 0}, {0, 0, 0});
        row("not a number", {1, nan, 3}, {1, Unset, Unset}, {1, Unset, Unset});
    }

    void distances()
    {
        QFETCH(Triple, stored);
        QFETCH(Triple, edited);
        QFETCH(Triple, storedAgain);
        QVERIFY(0.045F - 0.035F != 0.01F); // the spacing of the defaults is this very number
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

    void cleaning_data()
    {
        // first, last: offsets of the fields
        const Columns<int, int, bool, bool, bool> row("first", "last", "zeroIsUnset", "bigIsUnset",
                                                      "negativeIsUnset");
        row("directions and reference", 20, 52, false, false, false);
        row("distances", 56, 76, false, true, true);
        row("first diameter", 80, 80, true, false, true);
        row("diameters and reserved", 84, 104, true, true, true);
        row("reinforcement and reserved", 108, 160, false, true, true);
        row("cracks and stresses", 164, 208, false, true, true);
    }

    void cleaning()
    {
        QFETCH(int, first);
        QFETCH(int, last);
        QFETCH(bool, zeroIsUnset);
        QFETCH(bool, bigIsUnset);
        QFETCH(bool, negativeIsUnset);
        const auto cleaned = [](int offset, float value) {
            R record{};
            std::memcpy(reinterpret_cast<char*>(&record) + offset, &value, sizeof value);
            plib::cleanRecord(record);
            std::memcpy(&value, reinterpret_cast<char*>(&record) + offset, sizeof value);
            return bits(value);
        };
        for (int offset = first; offset <= last; offset += 4) {
            const auto check = [&](float value, bool isUnset) {
                QCOMPARE(cleaned(offset, value), bits(isUnset ? Unset : value));
            };
            check(0.0F, zeroIsUnset);
            check(-0.0F, zeroIsUnset); // is not below zero
            check(-1e-30F, negativeIsUnset);
            check(AlsoUnset, bigIsUnset);
            check(0.5F, false);
            check(std::numeric_limits<float>::quiet_NaN(), false);
            check(std::numeric_limits<float>::infinity(), false);
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
        for (int offset = 0; offset < int(sizeof record); offset += 4) {
            R other = record;
            char* const word = reinterpret_cast<char*>(&other) + offset;
            word[1] ^= 1;
            // group, subId, reservedD and reservedS take no part; mark does, though 0 and 11 are
            // both ours
            const bool ignored = offset < 8 || offset == 104 || offset == 132;
            QVERIFY2(plib::recordsEqual(record, other) == ignored,
                     qPrintable(QString::number(offset)));
        }
        R nan = record;
        nan.wko = std::numeric_limits<float>::quiet_NaN();
        QVERIFY(!plib::recordsEqual(nan, nan));
        R zero = record;
        R negativeZero = record;
        zero.rio = 0.0F;
        negativeZero.rio = -0.0F;
        QVERIFY(plib::recordsEqual(zero, negativeZero));
    }

    void littleEndianBytes()
    {
        R record{};
        record.group = 0x04030201;
        record.sigui = 1.0F; // 0x3F800000
        const auto words = plib::toBytes(record);
        const QByteArray bytes(words.data(), int(words.size()));
        QCOMPARE(bytes.left(4).toHex(), QByteArray("01020304"));
        QCOMPARE(bytes.right(4).toHex(), QByteArray("0000803f"));
        const R back = plib::fromBytes(words);
        QVERIFY(std::memcmp(&back, &record, sizeof record) == 0);
    }
};

PLIB_TEST_MAIN(TestDesignRecord)
#include "tst_designRecord.moc"
