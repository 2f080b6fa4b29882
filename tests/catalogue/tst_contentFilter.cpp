#include "TestSupport.h"

#include <contentFilter.h>

using plib::Content;

/// Answers yes for one sort of content.
class OneAnswer : public plib::ModelQueries
{
public:
    OneAnswer(std::optional<Content> content, int kind)
        : m_content(content)
        , m_kind(kind)
    {
    }
    bool has(Content content) const override { return content == m_content; }
    int kindOfSystem() const override { return m_kind; }

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
    void tag_data()
    {
        const Columns<QString, int> row("tag", "content");
        const struct
        {
            const char* tag;
            Content content;
        } pairs[] = {
            {"Node", Content::Nodes},         {"Quad", Content::Quads},
            {"Boun", Content::Boundaries},    {"Beam", Content::Beams},
            {"DSLN", Content::DesignLines},   {"Trus", Content::Trusses},
            {"Sir", Content::SectionCuts},    {"Gpt", Content::Points},
            {"Gln", Content::Lines},          {"Gar", Content::Areas},
            {"Axis", Content::Axes},          {"Cabl", Content::Cables},
            {"Spri", Content::Springs},       {"Bric", Content::Bricks},
            {"Qten", Content::QuadTendons},   {"Bten", Content::BeamTendons},
            {"Sect", Content::CrossSections},
        };
        for (const auto& pair : pairs)
            row(pair.tag, pair.tag, int(pair.content));
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
        for (int kind = from; kind <= to; ++kind)
            QTEST(plib::systemBit(kind), "bit");
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
        QTEST(plib::isRecordOffered(r, 3, model, {additional}), "expected");
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
