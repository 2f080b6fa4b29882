#include "geometry/GeometryBuilder.h"

#include "geometry/brickfaces.h"
#include "geometry/coarseGeometry.h"
#include "geometry/faceedges.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace vkd {
namespace aniview {

namespace {
/// No building has coordinates beyond this limit in metres. Squares of larger lengths would lose
/// precision.
constexpr double Nowhere = 1e9;
constexpr int MostPieces = 32; // per line
constexpr size_t PiecesInAll = 10000;
constexpr size_t PiecesToFace = 4; // extra pieces for each face

bool isSomewhere(const Position& position)
{
    return std::all_of(position.begin(), position.end(),
                       [](double value) { return std::abs(value) < Nowhere; });
}
} // namespace

GeometryBuilder::GeometryBuilder(const dbo::Model& model)
    : m_model(model)
    , m_parts(model.secondaryGroups)
{
    m_nodes.reserve(model.nodes.size());
    for (const dbo::Node& node : model.nodes)
        if (isSomewhere(node.position))
            m_nodes.insert(node.number, &node);
}

ModelGeometry GeometryBuilder::build()
{
    addQuads();
    addBricks();
    m_cell = meanEdge();
    addLines(m_model.beams, LineKind::Beam);
    addLines(m_model.trusses, LineKind::Truss);
    addLines(m_model.cables, LineKind::Cable);
    splitLines();
    addSprings();
    addSupports();
    sortParts();
    findPartsOfSupports();
    measure();
    scalePoints();
    completeFaces(m_geometry);
    m_geometry.coarser = coarserGeometry(m_geometry);
    return std::move(m_geometry);
}

int GeometryBuilder::pointAt(int node)
{
    const auto known = m_pointOfNode.constFind(node);
    if (known != m_pointOfNode.constEnd())
        return *known;
    const dbo::Node* found = m_nodes.value(node);
    if (!found)
        return -1;
    const int point = addPoint(found->position);
    m_pointOfNode.insert(node, point);
    return point;
}

int GeometryBuilder::addPoint(const Position& position)
{
    m_positions.push_back(position);
    return int(m_positions.size()) - 1;
}

bool GeometryBuilder::takePoints(const int* nodes, int count, int* points)
{
    if (!std::all_of(nodes, nodes + count, [this](int node) { return m_nodes.contains(node); }))
        return false;
    std::transform(nodes, nodes + count, points, [this](int node) { return pointAt(node); });
    return true;
}

void GeometryBuilder::addQuads()
{
    for (const dbo::Quad& quad : m_model.quads)
        if (Face* face = addFace(quad.nodes, quad.nodes[3] == 0 ? 3 : 4, quad.thickness))
            face->part = m_parts.ofQuad(quad.number, quad.group);
}

void GeometryBuilder::addBricks()
{
    for (const BrickFace& face : outerFaces(m_model.bricks))
        if (Face* added = addFace(face.nodes.data(), int(face.nodes.size()), 0.0))
            added->part = m_parts.ofGroup(face.group);
}

Face* GeometryBuilder::addFace(const int* nodes, int count, double thickness)
{
    Face face;
    face.count = count;
    face.thickness = float(qBound(0.0, thickness, 10.0));
    if (!takePoints(nodes, count, face.points))
        return nullptr;
    m_geometry.faces.push_back(face);
    return &m_geometry.faces.back();
}

void GeometryBuilder::addLines(const QVector<dbo::LineElement>& elements, LineKind kind)
{
    for (const dbo::LineElement& element : elements) {
        Line line;
        line.kind = kind;
        if (!takePoints(element.nodes, 2, line.points))
            continue;
        line.part = kind == LineKind::Beam ? m_parts.ofBeam(element.number, element.group)
                                           : m_parts.ofGroup(element.group);
        m_geometry.lines.push_back(line);
    }
}

/// Splits long lines, because some parts of a line that passes many faces may be in front of the
/// faces and other parts hidden by them. If the model has few faces, its lines are split into few
/// pieces, because one small face must not slow down the painting of a frame with thousands of
/// bars.
void GeometryBuilder::splitLines()
{
    const std::vector<Line> lines = std::exchange(m_geometry.lines, {});
    const auto isLong = [this](const Line& line) { return wantedPieces(line) > 1; };
    const auto longLines = std::count_if(lines.begin(), lines.end(), isLong);
    const auto worth = ptrdiff_t(PiecesInAll + PiecesToFace * m_geometry.faces.size());
    const int most =
        1 + int(std::min<ptrdiff_t>(worth / std::max<ptrdiff_t>(longLines, 1), MostPieces));
    for (const Line& line : lines)
        addSplit(line, std::min(wantedPieces(line), most));
}

int GeometryBuilder::wantedPieces(const Line& line) const
{
    const double length = lengthOf(line.points[0], line.points[1]);
    const double wanted = m_cell > 0 ? std::ceil(length / (1.5 * m_cell)) : 1.0;
    return int(qBound(1.0, wanted, double(MostPieces)));
}

void GeometryBuilder::addSplit(const Line& line, int pieces)
{
    const Position from = m_positions[size_t(line.points[0])];
    const Position way = along(m_positions[size_t(line.points[1])], -1.0, from);
    Line piece = line;
    for (int i = 1; i <= pieces; ++i) {
        piece.points[1] =
            i == pieces ? line.points[1] : addPoint(along(from, i / double(pieces), way));
        m_geometry.lines.push_back(piece);
        piece.points[0] = piece.points[1];
    }
}

/// Adds the springs. A spring to the ground is drawn below its node and is half as long as the edge
/// of a face, so that an elastic foundation is visible at the edges of its plate.
void GeometryBuilder::addSprings()
{
    const double length = m_cell > 0 ? 0.5 * m_cell : 0.5;
    for (const dbo::Spring& spring : m_model.springs) {
        Line line;
        const bool toGround = spring.nodes[1] == 0;
        line.kind = toGround ? LineKind::GroundSpring : LineKind::Spring;
        if (!takePoints(spring.nodes, toGround ? 1 : 2, line.points))
            continue;
        line.part = m_parts.ofGroup(spring.group);
        if (toGround)
            line.points[1] = addPoint(
                along(m_positions[size_t(line.points[0])], -length, Position{0.0, 0.0, 1.0}));
        m_geometry.lines.push_back(line);
    }
}

/// Adds supports only at nodes that belong to elements. Other nodes would make the bounding box
/// larger than the visible model.
void GeometryBuilder::addSupports()
{
    for (const dbo::Boundary& support : m_model.supports) {
        const auto point = m_pointOfNode.constFind(support.node);
        if (point != m_pointOfNode.constEnd())
            m_geometry.supports.push_back({*point, support.fixed, {}});
    }
}

void GeometryBuilder::findPartsOfSupports()
{
    QHash<int, QSet<int>> partsAt;
    for (const Support& support : m_geometry.supports)
        partsAt[support.point];
    const auto add = [&partsAt](int point, int part) {
        const auto parts = partsAt.find(point);
        if (parts != partsAt.end())
            parts->insert(part);
    };
    for (const Face& face : m_geometry.faces)
        for (int i = 0; i < face.count; ++i)
            add(face.points[i], face.part);
    for (const Line& line : m_geometry.lines)
        for (int point : line.points)
            add(point, line.part);
    for (Support& support : m_geometry.supports) {
        const QSet<int>& parts = partsAt[support.point];
        support.parts.assign(parts.begin(), parts.end());
    }
}

double GeometryBuilder::meanEdge() const
{
    double sum = 0.0;
    int edges = 0;
    for (const Face& face : m_geometry.faces)
        for (int i = 0; i < face.count; ++i, ++edges)
            sum += lengthOf(face.points[i], face.points[(i + 1) % face.count]);
    return edges > 0 ? sum / edges : 0.0;
}

double GeometryBuilder::lengthOf(int from, int to) const
{
    const Position way = along(m_positions[size_t(from)], -1.0, m_positions[size_t(to)]);
    return std::sqrt(dot(way, way));
}

/// Replaces the numbers of parts with indexes into the sorted list.
void GeometryBuilder::sortParts()
{
    std::vector<int> indexes;
    m_geometry.parts = m_parts.sorted(&indexes);
    for (Face& face : m_geometry.faces)
        face.part = indexes[size_t(face.part)];
    for (Line& line : m_geometry.lines)
        line.part = indexes[size_t(line.part)];
}

void GeometryBuilder::measure()
{
    if (m_positions.empty())
        return;
    Position least = m_positions.front();
    Position most = least;
    for (const Position& position : m_positions)
        for (size_t i = 0; i < position.size(); ++i) {
            least[i] = std::min(least[i], position[i]);
            most[i] = std::max(most[i], position[i]);
        }
    for (size_t i = 0; i < least.size(); ++i) {
        m_geometry.box.centre[i] = (least[i] + most[i]) / 2.0;
        m_geometry.box.half[i] = (most[i] - least[i]) / 2.0;
    }
    const Position& half = m_geometry.box.half;
    m_geometry.unit = std::max(std::sqrt(dot(half, half)), 1e-3);
}

void GeometryBuilder::scalePoints()
{
    for (const Position& position : m_positions) {
        const Position offset = along(position, -1.0, m_geometry.box.centre);
        m_geometry.x.push_back(float(offset[0] / m_geometry.unit));
        m_geometry.y.push_back(float(offset[1] / m_geometry.unit));
        m_geometry.z.push_back(float(offset[2] / m_geometry.unit));
    }
    m_geometry.cell = m_geometry.meshCell = float(m_cell / m_geometry.unit);
}

ModelGeometry buildGeometry(const dbo::Model& model)
{
    return GeometryBuilder(model).build();
}

} // namespace aniview
} // namespace vkd
