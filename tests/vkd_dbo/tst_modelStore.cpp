#include "TestSupport.h"

#include <vkd_dbo_groups.h>
#include <vkd_dbo_model.h>
#include <vkd_dbo_queries.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>
#include <vkd_zob.h>

#include <QTemporaryDir>

#include <tuple>
#include <vector>

namespace vkd {
namespace dbo {
/// The fields that determine whether two items are equal.
struct Fields
{
    template <size_t N>
    static std::vector<int> all(const int (&numbers)[N])
    {
        return std::vector<int>(numbers, numbers + N);
    }
    static auto of(const SystemInformation& s) { return std::tie(s.title, s.kindOfSystem); }
    static auto of(const Node& n) { return std::tie(n.number, n.position); }
    static auto of(const Boundary& b) { return std::tie(b.node, b.fixed); }
    static auto of(const CrossSection& s) { return std::tie(s.number, s.title); }
    static auto of(const Group& g) { return std::tie(g.number, g.title); }
    static auto of(const SecondaryGroup& g) { return std::tie(g.name, g.title, g.quads, g.beams); }
    static auto of(const LineElement& e)
    {
        return std::make_tuple(e.number, e.group, e.crossSection, all(e.nodes));
    }
    static auto of(const Spring& s)
    {
        return std::make_tuple(s.number, s.group, all(s.nodes), s.stiffness);
    }
    static auto of(const Quad& q)
    {
        return std::make_tuple(q.number, q.group, all(q.nodes), q.thickness);
    }
    static auto of(const Brick& b) { return std::make_tuple(b.number, b.group, all(b.nodes)); }
    static auto of(const Point& p) { return std::tie(p.number, p.position); }
    static auto of(const Outline& o) { return std::tie(o.number, o.points); }
    static auto of(const Polyline& p) { return std::tie(p.number, p.title, p.points); }
    static auto of(const LoadCase& l) { return std::tie(l.number, l.title, l.kind); }
    static auto of(const Model& m)
    {
        return std::tie(m.system, m.nodes, m.supports, m.crossSections, m.groups, m.secondaryGroups,
                        m.beams, m.trusses, m.cables, m.springs, m.quads, m.bricks, m.quadTendons,
                        m.beamTendons, m.points, m.lines, m.areas, m.axes, m.sectionCuts,
                        m.designLines, m.loadCases);
    }
};

template <typename T>
auto operator==(const T& a, const T& b) -> decltype(Fields::of(a), true)
{
    return Fields::of(a) == Fields::of(b);
}
} // namespace dbo
} // namespace vkd

using namespace vkd::dbo;

struct Query
{
    const char* name;
    bool (*has)(int, int*);
    void (*add)(Model&);
};

static const Query queries[] = {
    {"nodes", hasNodes, [](Model& m) { m.nodes.resize(1); }},
    {"quads", hasQuads, [](Model& m) { m.quads.resize(1); }},
    {"boundaries", hasBoundaries, [](Model& m) { m.supports.resize(1); }},
    {"beams", hasBeams, [](Model& m) { m.beams.resize(1); }},
    {"trusses", hasTrus, [](Model& m) { m.trusses.resize(1); }},
    {"section cuts", hasBscts, [](Model& m) { m.sectionCuts.resize(1); }},
    {"points", hasPoints, [](Model& m) { m.points.resize(1); }},
    {"lines", hasLines, [](Model& m) { m.lines.resize(1); }},
    {"areas", hasAreas, [](Model& m) { m.areas.resize(1); }},
    {"axes", hasAxes, [](Model& m) { m.axes.resize(1); }},
    {"cables", hasCables, [](Model& m) { m.cables.resize(1); }},
    {"springs", hasSprings, [](Model& m) { m.springs.resize(1); }},
    {"bricks", hasBrics, [](Model& m) { m.bricks.resize(1); }},
    {"quad tendons", hasQuadTendons, [](Model& m) { m.quadTendons.resize(1); }},
    {"beam tendons", hasBeamTendons, [](Model& m) { m.beamTendons.resize(1); }},
    {"cross sections", hasCrossSections, [](Model& m) { m.crossSections.resize(1); }},
    {"groups", hasGroups, [](Model& m) { m.groups.resize(1); }},
    {"secondary groups", hasSgrp, [](Model& m) { m.secondaryGroups.resize(1); }},
};

/// Tests storing a model in a project and querying the stored model.
class TestModelStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("p"));
        QCOMPARE(vkd_zob_create(m_path.toUtf8(), &m_index).code, int(VKD_ZOB_OK));
        vkd_lib_setvalue(201, 30);
    }

    void cleanup() { vkd_zob_close(m_index); }

    void eachModelReplacesTheOneBefore()
    {
        QVERIFY(readModel(project()) == Model());
        for (const char* name : {"hall", "building", "slab", "hall"}) {
            const Model model = shipped(name);
            QVERIFY(storeModel(project(), model).isOk());
            QVERIFY2(readModel(project()) == model, name);
            QVERIFY(readLoadCases(project()) == model.loadCases);
            QCOMPARE(getKindOfSystem(m_index, nullptr), model.system.kindOfSystem);
            constexpr ZobHandle Scratch = ZobHandle::scratch();
            QVERIFY(copySystem(project(), Scratch).isOk());
            Model copy;
            copy.system = model.system;
            QVERIFY(readModel(Scratch) == copy);
            QVERIFY(modelMark(Scratch) != modelMark(project())); // views compare marks
        }
        QVERIFY(storeModel(project(), Model()).isOk());
        QVERIFY(readModel(project()) == Model());
        QCOMPARE(getKindOfSystem(m_index, nullptr), 0);
    }

    void eachQueryAsksForOneList()
    {
        for (const Query& asked : queries) {
            Model model;
            asked.add(model);
            QVERIFY(storeModel(project(), model).isOk());
            for (const Query& one : queries)
                QVERIFY2(one.has(m_index, nullptr) == (&one == &asked), one.name);
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(QStringLiteral("no project is open")));
            QVERIFY(!asked.has(77, nullptr));
        }
    }

    void cancelledWorkLeavesTheOldModel()
    {
        const VkdGoOn no = [](int) { return false; };
        const Model old = shipped("slab");
        QVERIFY(storeModel(project(), old).isOk());
        QVERIFY(!storeModel(project(), shipped("hall"), no).isOk());
        QVERIFY(readModel(project()) == old);
        int most = 0;
        QVERIFY(storeModel(project(), shipped("hall"), [&most](int percent) {
                    most = std::max(most, percent);
                    return true;
                }).isOk());
        QVERIFY2(most > 50 && most <= 100, QByteArray::number(most));
        VkdStatus status;
        QVERIFY(!(readModel(project(), no, nullptr, &status) == shipped("hall")));
        QCOMPARE(status.code, int(VKD_ZOB_CANCELLED));
        int index = -1;
        QCOMPARE(vkd_zob_open(m_path.toUtf8(), &index, no).code, int(VKD_ZOB_CANCELLED));
        Model model;
        const auto file = vkd_lib_searchpath("models/hall.json", 3);
        QCOMPARE(
            readModelFile(QString::fromStdString(*file), vkd::Language::German, &model, no).code,
            int(VKD_ZOB_CANCELLED));
    }

    /// `goOn` is called between two lists, while the other program still cannot write.
    void readFromOneState()
    {
        int other = -1;
        QCOMPARE(vkd_zob_open(m_path.toUtf8(), &other).code, int(VKD_ZOB_OK));
        Model old;
        old.nodes.resize(994);
        old.supports.resize(1);
        QVERIFY(storeModel(project(), old).isOk());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("cannot store")));
        const VkdGoOn storeOther = [other](int) {
            return !storeModel(ZobHandle(other), Model()).isOk();
        };
        QByteArray mark;
        QVERIFY(readModel(project(), storeOther, &mark) == old);
        QCOMPARE(mark, modelMark(project()));
        QVERIFY(storeModel(ZobHandle(other), Model()).isOk());
        vkd_zob_close(other);
    }

    void failureEndsTheReading()
    {
        Model model;
        model.nodes.resize(1500);
        QVERIFY(storeModel(project(), model).isOk());
        const QRegularExpression notOpen(QStringLiteral("no project is open"));
        for (int i = 0; i < 2; ++i) // the record and the end of its list
            QTest::ignoreMessage(QtWarningMsg, notOpen);
        QByteArray mark("old");
        VkdStatus status;
        readModel(
            project(), [this](int) { return vkd_zob_close(m_index).code == VKD_ZOB_OK; }, &mark,
            &status);
        QVERIFY(mark.isEmpty());
        QCOMPARE(status.code, int(VKD_ZOB_NOT_OPEN));
        QTest::ignoreMessage(QtWarningMsg, notOpen);
        QVERIFY(readGroups(project(), &status).isEmpty());
        QCOMPARE(status.code, int(VKD_ZOB_NOT_OPEN));
        QCOMPARE(vkd_zob_open(m_path.toUtf8(), &m_index).code, int(VKD_ZOB_OK));
    }

    void damagedRecordIsLeftOut()
    {
        const QList<QPair<int, QByteArray>> records{
            {20, QByteArray(20, '\1')},       // a truncated node
            {32, QByteArray(12, '\x7F')},     // an outline that is longer than its record
            {32, QByteArray(12, '\xFF')},     // an outline with negative length
            {Groups, QByteArray(12, '\x7E')}, // a title that is longer than its record
            {LoadCases, QByteArray(1, '\1')},
            {Quads, QByteArray(7, '\1')},  // an element that is truncated within its group
            {Quads, QByteArray(8, '\1')}}; // an element that is truncated after its group
        const QRegularExpression tooShort(QStringLiteral("too short"));
        const Model model = shipped("hall");
        for (const auto& [key1, record] : records) {
            QVERIFY(storeModel(project(), model).isOk());
            const int length = record.size();
            QCOMPARE(vkd_zob_put(m_index, key1, 0, record, &length, 1), int(VKD_ZOB_OK));
            QTest::ignoreMessage(QtWarningMsg, tooShort);
            VkdStatus status;
            QVERIFY(readModel(project(), VkdGoOn(), nullptr, &status) == model);
            QCOMPARE(status.reason,
                     QStringLiteral("a record with the keys %1, 0 is too short and is skipped")
                         .arg(key1));
            const bool areLoadCases = key1 == LoadCases;
            const bool areGroups = key1 == Groups || length == 7; // the group of an element is read
            if (areLoadCases || areGroups)
                QTest::ignoreMessage(QtWarningMsg, tooShort);
            QCOMPARE(readGroups(project(), &status).size(), model.groups.size());
            QCOMPARE(status.isOk(), !areGroups);
            readLoadCases(project(), &status);
            QCOMPARE(status.isOk(), !areLoadCases);
        }
    }

private:
    static constexpr int Groups = 11, LoadCases = 12, Quads = 200;

    static Model shipped(const char* name)
    {
        Model model;
        const auto path = vkd_lib_searchpath(QByteArray("models/") + name + ".json", 3);
        if (!path ||
            !readModelFile(QString::fromStdString(*path), vkd::Language::German, &model).isOk())
            qFatal("no model %s", name);
        return model;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    ZobHandle project() const { return ZobHandle(m_index); }

    int m_index = -1;
};

PLIB_TEST_MAIN(TestModelStore)
#include "tst_modelStore.moc"
