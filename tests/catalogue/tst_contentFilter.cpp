#include "TestSupport.h"

#include <catalogue/contentFilter.h>

using plib::Content;

/// A model that has only one kind of content.
class OneAnswer : public plib::ModelQueries
{
public:
    OneAnswer(std::optional<Content> content, int kind)
        : m_content(content)
        , m_kind(kind)
    {
    }
    bool has(Content content) const override { return ++asked, content == m_content; }
    int kindOfSystem() const override { return ++asked, m_kind; }

    mutable int asked = 0;

private:
    std::optional<Content> m_content;
    int m_kind;
};

static plib::GraphicalOutputRecord record()
{
    plib::GraphicalOutputRecord r;
    r.prog1 = 3;
    r.title1 = r.title2 = r.title3 = QStringLiteral("x");
    return r;
}

class TestContentFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tags()
    {
        // The bits are in the order of Content.
        const QString tags = QStringLiteral("Node Quad Boun Beam DSLN Trus Sir Gpt Gln Gar Axis "
                                            "Cabl Spri Bric Qten Bten Sect");
        int content = 0;
        for (const QString& tag : tags.split(QLatin1Char(' '))) {
            const OneAnswer yes(Content(content++), 0);
            const OneAnswer no(std::nullopt, 0);
            QVERIFY2(plib::hasContent(tag, yes), qPrintable(tag));
            for (const QString& same : {tag, tag.toUpper(), tag.toLower()})
                QVERIFY(!plib::hasContent(same, no));
            QVERIFY(plib::hasContent(tag + QLatin1Char('s'), no)); // unknown tags are ignored
        }
    }

    void systemBits()
    {
        const auto bits = [](int from, int to) {
            QString all;
            for (int kind = from; kind <= to; ++kind)
                all += QString::number(plib::systemBit(kind), 16);
            return all;
        };
        QCOMPARE(bits(-9, 9), QString(19, QLatin1Char('8')));
        QCOMPARE(bits(10, 19), QStringLiteral("1122112222"));
        QCOMPARE(bits(20, 39), QStringLiteral("88888888884444444444"));
        QCOMPARE(bits(40, 49), QString(10, QLatin1Char('0'))); // do not match any mask
        QCOMPARE(bits(50, 60), QString(11, QLatin1Char('f'))); // match any mask
        QCOMPARE(bits(-20, -10), QString(11, QLatin1Char('f')));
    }

    void offered_data()
    {
        const Columns<int, int, QString, QString, bool> row("kind", "mask", "tag", "additional",
                                                            "expected");
        row("plain", 0, 0, "", "", true);
        row("mask fits", 10, 9, "", "", true);
        row("mask does not fit", 10, 2, "", "", false);
        row("high bits count for nothing", 10, 16 + 2, "", "", false);
        row("a mask without low bits is none", 45, 16, "", "", true);
        row("negative mask", 10, -1, "", "", true);
        row("negative mask in the forties", 45, -1, "", "", false);
        row("content missing", 0, 0, "Quad", "", false);
        row("content added", 0, 0, "Quad", "Quad", true);
        row("added in another case", 0, 0, "Quad", "quad", false);
        row("content there", 0, 0, "nODE", "", true);
    }

    void offered()
    {
        QFETCH(int, kind);
        QFETCH(int, mask);
        QFETCH(QString, tag);
        QFETCH(QString, additional);
        plib::GraphicalOutputRecord r = record();
        r.systemMask = mask;
        r.contentTag = tag;
        const OneAnswer model(Content::Nodes, kind);
        const plib::RememberedAnswers remembered(model);
        QTEST(plib::isRecordOffered(r, 3, remembered, {additional}), "expected");
        const int asked = model.asked;
        QTEST(plib::isRecordOffered(r, 3, remembered, {additional}), "expected");
        QCOMPARE(model.asked, asked);
    }

    void pagesAndTitles()
    {
        const OneAnswer model(std::nullopt, 0);
        QVERIFY(plib::isRecordOffered(record(), 3, model, {}));
        QVERIFY(!plib::isRecordOffered(record(), 4, model, {}));
        plib::GraphicalOutputRecord r = record();
        std::swap(r.prog1, r.prog3);
        QVERIFY(plib::isRecordOffered(r, 3, model, {}));
        using Record = plib::GraphicalOutputRecord;
        for (QString Record::*title : {&Record::title1, &Record::title2, &Record::title3}) {
            r = record();
            (r.*title).clear();
            QVERIFY(!plib::isRecordOffered(r, 3, model, {}));
        }
    }
};

PLIB_TEST_MAIN(TestContentFilter)
#include "tst_contentFilter.moc"
