#include "TestSupport.h"

#include <contentFilter.h>

using plib::Content;

/// Answers yes for one sort of content and counts what it is asked.
class OneAnswer : public plib::ModelQueries
{
public:
    OneAnswer(std::optional<Content> content, int kind)
        : m_content(content)
        , m_kind(kind)
    {
    }
    bool has(Content content) const override { return content == m_content; }
    int kindOfSystem() const override
    {
        ++kindAsked;
        return m_kind;
    }
    mutable int kindAsked = 0;

private:
    std::optional<Content> m_content;
    int m_kind;
};

Q_DECLARE_METATYPE(plib::GraphicalOutputRecord)

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
    void tag_data()
    {
        const Columns<QString, int> row("tag", "content");
        const char* const tags[] = {"Node", "Quad", "Boun", "Beam", "DSLN", "Trus",
                                    "Sir",  "Gpt",  "Gln",  "Gar",  "Axis", "Cabl",
                                    "Spri", "Bric", "Qten", "Bten", "Sect"};
        const Content contents[] = {
            Content::Nodes,        Content::Quads,   Content::Boundaries,  Content::Beams,
            Content::DesignLines,  Content::Trusses, Content::SectionCuts, Content::Points,
            Content::Lines,        Content::Areas,   Content::Axes,        Content::Cables,
            Content::Springs,      Content::Bricks,  Content::QuadTendons, Content::BeamTendons,
            Content::CrossSections};
        for (size_t i = 0; i < std::size(tags); ++i)
            row(tags[i], QString::fromLatin1(tags[i]), int(contents[i]));
    }

    void tag()
    {
        QFETCH(QString, tag);
        QFETCH(int, content);
        const OneAnswer yes(Content(content), 0);
        const OneAnswer no(std::nullopt, 0);
        QVERIFY(plib::hasContent(tag, yes));
        QVERIFY(plib::hasContent(tag.toUpper(), yes));
        QVERIFY(plib::hasContent(tag.toLower(), yes));
        QVERIFY(!plib::hasContent(tag, no));
        QVERIFY(plib::hasContent(tag + QLatin1Char('s'), no)); // another text is no condition
    }

    void systemBit_data()
    {
        const Columns<int, int, int> row("from", "to", "bit");
        row("spatial, on both sides of 0", -9, 9, 8);
        row("10, 11", 10, 11, 1);
        row("12, 13", 12, 13, 2);
        row("14, 15", 14, 15, 1);
        row("16 to 19", 16, 19, 2);
        row("slabs", 20, 29, 8);
        row("axisymmetric", 30, 39, 4);
        row("forties fit no mask", 40, 49, 0);
        row("above fits any", 50, 130, 15);
        row("below fits any", -130, -10, 15);
    }

    void systemBit()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, bit);
        for (int kind = from; kind <= to; ++kind)
            QCOMPARE(plib::systemBit(kind), bit);
    }

    void offered_data()
    {
        QTest::addColumn<plib::GraphicalOutputRecord>("record");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("additional");
        QTest::addColumn<bool>("expected");
        const auto row = [](const char* name, auto change, int kind, const char* additional,
                            bool expected) {
            auto r = record();
            change(r);
            QTest::newRow(name) << r << kind << QString::fromLatin1(additional) << expected;
        };
        using R = plib::GraphicalOutputRecord;
        row(
            "plain", [](R&) {}, 0, "", true);
        row(
            "third program", [](R& r) { r.prog1 = 0, r.prog3 = 3; }, 0, "", true);
        row(
            "other program", [](R& r) { r.prog1 = 4; }, 0, "", false);
        row(
            "mask fits", [](R& r) { r.systemMask = 9; }, 10, "", true);
        row(
            "mask does not fit", [](R& r) { r.systemMask = 2; }, 10, "", false);
        row(
            "high bits count for nothing", [](R& r) { r.systemMask = 16 + 2; }, 10, "", false);
        row(
            "a mask without low bits is none", [](R& r) { r.systemMask = 16; }, 45, "", true);
        row(
            "negative mask", [](R& r) { r.systemMask = -1; }, 10, "", true);
        row(
            "negative mask in the forties", [](R& r) { r.systemMask = -1; }, 45, "", false);
        row(
            "content missing", [](R& r) { r.contentTag = QStringLiteral("Quad"); }, 0, "", false);
        row(
            "content added", [](R& r) { r.contentTag = QStringLiteral("Quad"); }, 0, "Quad", true);
        row(
            "added in another case", [](R& r) { r.contentTag = QStringLiteral("Quad"); }, 0, "quad",
            false);
        row(
            "content there", [](R& r) { r.contentTag = QStringLiteral("nODE"); }, 0, "", true);
        row(
            "no first title", [](R& r) { r.title1.clear(); }, 0, "", false);
        row(
            "no second title", [](R& r) { r.title2.clear(); }, 0, "", false);
        row(
            "no third title", [](R& r) { r.title3.clear(); }, 0, "", false);
    }

    void offered()
    {
        QFETCH(plib::GraphicalOutputRecord, record);
        QFETCH(int, kind);
        QFETCH(QString, additional);
        QFETCH(bool, expected);
        const OneAnswer model(Content::Nodes, kind);
        QCOMPARE(plib::isRecordOffered(record, 3, model, {additional}), expected);
    }

    void kindIsNotAskedWithoutMask()
    {
        const OneAnswer model(std::nullopt, 45);
        auto r = record();
        r.systemMask = 32;
        QVERIFY(plib::isRecordOffered(r, 3, model, {}));
        QCOMPARE(model.kindAsked, 0);
    }
};

PLIB_TEST_MAIN(TestContentFilter)
#include "tst_contentFilter.moc"
