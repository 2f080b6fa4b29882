#include "geometry/coarseGeometry.h"

#include "geometry/faceedges.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace vkd {
namespace aniview {

namespace {
constexpr size_t FewItems = 8000;
constexpr float LargestCell = 0.5F;
constexpr float CellOfBars = 0.01F; // used if there are no faces
constexpr int NoGroup = -1;
// Without this factor, QHash distributes the cells of a regular grid over only a few buckets, and
// opening a model with a million elements takes several times as long.
constexpr quint64 OddFactor = 0x9E3779B97F4A7C15U;

class CellMerger
{
public:
    CellMerger(const ModelGeometry& fine, float cell)
        : m_fine(fine)
        , m_cell(std::max(cell, 1e-4F)) // limits cell indexes to 16 bits
        , m_latest(fine.x.size(), {NoGroup - 1, 0})
        , m_isOnStrongEdge(fine.x.size())
    {
        eachStrongEdge(fine, [this](const Face&, int from, int to) {
            m_isOnStrongEdge[size_t(from)] = m_isOnStrongEdge[size_t(to)] = true;
        });
    }

    ModelGeometry merged();

private:
    int groupOf(int part) const { return m_fine.parts[size_t(part)].group; }
    quint64 keyOf(size_t point, int group) const;
    /// Returns the index of the merged point for a point of a group.
    int pointOf(int point, int group);
    void take(int merged, size_t point);
    void addFace(Face face);
    void addLines();
    void addSupports();
    void takeStrongEdges();
    template <typename Use>
    static void eachStrongEdge(const ModelGeometry& geometry, const Use& use);

    const ModelGeometry& m_fine;
    const float m_cell;
    std::vector<std::pair<int, int>> m_latest; // latest group and merged point of each point
    std::vector<bool> m_isOnStrongEdge;
    std::vector<int> m_origins; // original point that represents each merged point
    QHash<quint64, int> m_points;
    ModelGeometry m_coarse;
};

ModelGeometry CellMerger::merged()
{
    m_coarse.box = m_fine.box;
    m_coarse.unit = m_fine.unit;
    m_coarse.parts = m_fine.parts;
    m_coarse.meshCell = m_fine.meshCell;
    m_coarse.cell = m_fine.cell > 0.0F ? m_cell : 0.0F;
    for (const Face& face : m_fine.faces)
        addFace(face);
    addLines();
    addSupports();
    completeFaces(m_coarse);
    takeStrongEdges();
    return std::move(m_coarse);
}

quint64 CellMerger::keyOf(size_t point, int group) const
{
    const auto place = [this](float coordinate) {
        return quint64((coordinate + 1.0F) / m_cell) & 0xffffU;
    };
    return OddFactor * (place(m_fine.x[point]) << 48U | place(m_fine.y[point]) << 32U |
                        place(m_fine.z[point]) << 16U | (quint64(group + 1) & 0xffffU));
}

int CellMerger::pointOf(int point, int group)
{
    auto& latest = m_latest[size_t(point)]; // most points belong to only one group
    if (latest.first == group)
        return latest.second;
    const quint64 key = keyOf(size_t(point), group);
    auto known = m_points.constFind(key);
    if (known == m_points.constEnd()) {
        known = m_points.insert(key, int(m_coarse.x.size()));
        m_coarse.x.push_back(0.0F);
        m_coarse.y.push_back(0.0F);
        m_coarse.z.push_back(0.0F);
        m_origins.push_back(point);
    }
    take(*known, size_t(point));
    latest = {group, *known};
    return *known;
}

/// Represents each cell by the point farthest from the centre, so that the outline keeps its size.
/// Points on strong edges have priority, because adjacent groups share them and must remain
/// adjacent.
void CellMerger::take(int merged, size_t point)
{
    const auto i = size_t(merged);
    const auto rank = [this](size_t p) {
        return std::make_pair(bool(m_isOnStrongEdge[p]), m_fine.x[p] * m_fine.x[p] +
                                                             m_fine.y[p] * m_fine.y[p] +
                                                             m_fine.z[p] * m_fine.z[p]);
    };
    if (rank(point) < rank(size_t(m_origins[i])))
        return;
    m_origins[i] = int(point);
    m_coarse.x[i] = m_fine.x[point];
    m_coarse.y[i] = m_fine.y[point];
    m_coarse.z[i] = m_fine.z[point];
}

void CellMerger::addFace(Face face)
{
    int corners[4];
    int count = 0;
    for (int i = 0; i < face.count; ++i) {
        const int corner = pointOf(face.points[i], groupOf(face.part));
        if (std::find(corners, corners + count, corner) == corners + count)
            corners[count++] = corner;
    }
    if (count < 3)
        return;
    std::copy(corners, corners + count, face.points);
    face.count = count;
    m_coarse.faces.push_back(face);
}

void CellMerger::addLines()
{
    std::vector<Line>& lines = m_coarse.lines;
    for (Line line : m_fine.lines) {
        for (int& point : line.points)
            point = pointOf(point, groupOf(line.part));
        if (line.points[0] != line.points[1])
            lines.push_back(line);
    }
    const auto key = [](const Line& line) {
        return std::make_tuple(std::min(line.points[0], line.points[1]),
                               std::max(line.points[0], line.points[1]), line.kind);
    };
    std::sort(lines.begin(), lines.end(),
              [key](const Line& a, const Line& b) { return key(a) < key(b); });
    lines.erase(std::unique(lines.begin(), lines.end(),
                            [key](const Line& a, const Line& b) { return key(a) == key(b); }),
                lines.end());
}

/// Adds one support per cell, with the parts of the first support in the cell.
void CellMerger::addSupports()
{
    for (const Support& support : m_fine.supports) {
        const auto known = int(m_coarse.x.size());
        const int point = pointOf(support.point, NoGroup);
        if (point == known)
            m_coarse.supports.push_back({point, support.fixed, support.parts});
    }
}

template <typename Use>
void CellMerger::eachStrongEdge(const ModelGeometry& geometry, const Use& use)
{
    for (const Face& face : geometry.faces)
        for (int side = 0; side < face.count; ++side)
            if (face.strongEdges & 1U << unsigned(side))
                use(face, face.points[side], face.points[(side + 1) % face.count]);
}

/// Marks the edges that originate from strong edges. Merged faces overlap, so other edges would
/// look like the rim of a plate.
void CellMerger::takeStrongEdges()
{
    const auto key = [](int a, int b) {
        return quint64(std::min(a, b)) << 32U | quint64(std::max(a, b));
    };
    QSet<quint64> strong;
    eachStrongEdge(m_fine, [&](const Face& face, int from, int to) {
        const int group = groupOf(face.part);
        strong.insert(key(pointOf(from, group), pointOf(to, group)));
    });
    for (Face& face : m_coarse.faces) {
        face.strongEdges = 0;
        for (int side = 0; side < face.count; ++side)
            if (strong.contains(key(face.points[side], face.points[(side + 1) % face.count])))
                face.strongEdges |= 1U << unsigned(side);
    }
}

std::shared_ptr<const ModelGeometry> coarserGeometry(const ModelGeometry& fine, float cell)
{
    while (fine.itemCount() > FewItems && cell < LargestCell) {
        auto coarse = std::make_shared<ModelGeometry>(mergedInCells(fine, cell));
        cell *= 2.0F;
        if (2 * coarse->itemCount() > fine.itemCount())
            continue;
        coarse->coarser = coarserGeometry(*coarse, cell);
        return coarse;
    }
    return nullptr;
}
} // namespace

ModelGeometry mergedInCells(const ModelGeometry& geometry, float cell)
{
    return CellMerger(geometry, cell).merged();
}

std::shared_ptr<const ModelGeometry> coarserGeometry(const ModelGeometry& geometry)
{
    return coarserGeometry(geometry, geometry.cell > 0.0F ? 2.0F * geometry.cell : CellOfBars);
}

} // namespace aniview
} // namespace vkd
