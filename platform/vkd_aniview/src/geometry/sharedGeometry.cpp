#include "geometry/sharedGeometry.h"

#include <vkd_dbo_model.h>

namespace vkd {
namespace aniview {

namespace {
/// The last geometry and the mark of its model; the mark is never empty.
struct Known
{
    QByteArray mark;
    std::weak_ptr<const ModelGeometry> geometry;
};
} // namespace

std::shared_ptr<const ModelGeometry> sharedGeometry(int index, const VkdGoOn& goOn)
{
    static Known last;
    if (index <= 0)
        return std::make_shared<ModelGeometry>();
    if (auto known = last.geometry.lock(); known && dbo::modelMark(index) == last.mark)
        return known;
    bool goesOn = true;
    QByteArray mark;
    const dbo::Model model = dbo::readModel(
        index,
        [&goOn, &goesOn](int percent) {
            goesOn = goesOn && (!goOn || goOn(percent));
            return goesOn;
        },
        &mark);
    if (!goesOn)
        return nullptr;
    auto geometry = std::make_shared<const ModelGeometry>(buildGeometry(model));
    if (!mark.isEmpty()) // an empty mark: no model or only part of one
        last = {mark, geometry};
    return geometry;
}

} // namespace aniview
} // namespace vkd
