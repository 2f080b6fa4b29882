#pragma once

#include <vkd_dbo_model.h>

#include <vector>

namespace vkd {
namespace aniview {

struct BrickFace
{
    std::array<int, 4> nodes{};
    int group = 0;
};

/// Returns the faces that belong to only one brick.
std::vector<BrickFace> outerFaces(const QVector<dbo::Brick>& bricks);

} // namespace aniview
} // namespace vkd
