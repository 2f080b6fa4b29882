#include "geometry/brickfaces.h"

#include <algorithm>

namespace vkd {
namespace aniview {

namespace {
constexpr int FaceCorners[6][4] = {{0, 1, 2, 3}, {4, 5, 6, 7}, {0, 1, 5, 4},
                                   {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};

struct Candidate
{
    std::array<int, 4> sorted; // identical for two bricks that share the face
    BrickFace face;
};

std::vector<Candidate> allFaces(const QVector<dbo::Brick>& bricks)
{
    std::vector<Candidate> faces;
    for (const dbo::Brick& brick : bricks)
        for (const auto& corners : FaceCorners) {
            Candidate candidate;
            for (size_t i = 0; i < 4; ++i)
                candidate.face.nodes[i] = brick.nodes[corners[i]];
            candidate.face.group = brick.group;
            candidate.sorted = candidate.face.nodes;
            std::sort(candidate.sorted.begin(), candidate.sorted.end());
            faces.push_back(candidate);
        }
    return faces;
}
} // namespace

std::vector<BrickFace> outerFaces(const QVector<dbo::Brick>& bricks)
{
    std::vector<Candidate> faces = allFaces(bricks);
    std::stable_sort(faces.begin(), faces.end(),
                     [](const Candidate& a, const Candidate& b) { return a.sorted < b.sorted; });
    std::vector<BrickFace> outer;
    for (auto face = faces.begin(); face != faces.end();) {
        const auto next = std::find_if(face, faces.end(), [face](const Candidate& other) {
            return other.sorted != face->sorted;
        });
        if (next - face == 1)
            outer.push_back(face->face);
        face = next;
    }
    return outer;
}

} // namespace aniview
} // namespace vkd
