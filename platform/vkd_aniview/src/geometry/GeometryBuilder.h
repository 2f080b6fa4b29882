#pragma once

#include "geometry/GroupParts.h"

#include <QHash>

namespace vkd {
namespace aniview {

/// Collects the elements of a model for buildGeometry(), in metres, and scales them to the model's
/// unit at the end.
class GeometryBuilder
{
public:
    explicit GeometryBuilder(const dbo::Model& model);

    ModelGeometry build();

private:
    /// Returns the index of the point at a node, or -1 if the node does not exist.
    int pointAt(int node);
    int addPoint(const Position& position);
    bool takePoints(const int* nodes, int count, int* points);

    void addQuads();
    void addBricks();
    /// Returns the face, whose part is not set yet, or null if a node is missing.
    Face* addFace(const int* nodes, int count, double thickness);
    void addLines(const QVector<dbo::LineElement>& elements, LineKind kind);
    void splitLines();
    void addSplit(const Line& line, int pieces);
    int wantedPieces(const Line& line) const;
    void addSprings();
    void addSupports();
    void findPartsOfSupports();

    double meanEdge() const;
    double lengthOf(int from, int to) const;
    void sortParts();
    void measure();
    void scalePoints();

    const dbo::Model& m_model;
    GroupParts m_parts;
    QHash<int, const dbo::Node*> m_nodes;
    QHash<int, int> m_pointOfNode;
    std::vector<Position> m_positions;
    double m_cell = 0.0; // metres
    ModelGeometry m_geometry;
};

} // namespace aniview
} // namespace vkd
