#include "sharedGeometry.h"

#include <vkd_dbo_model.h>

namespace vkd {
namespace aniview {

std::shared_ptr<const ModelGeometry> sharedGeometry(int index, const VkdGoOn& goOn)
{
    static QByteArray lastMark;
    static std::weak_ptr<const ModelGeometry> last;
    if (index <= 0)
        return std::make_shared<ModelGeometry>();
    const QByteArray mark = dbo::modelMark(index);
    if (auto geometry = last.lock(); geometry && mark == lastMark)
        return geometry;
    bool goesOn = true;
    const dbo::Model model = dbo::readModel(index, [&goOn, &goesOn](int percent) {
        goesOn = goesOn && (!goOn || goOn(percent));
        return goesOn;
    });
    if (!goesOn)
        return nullptr;
    auto geometry = std::make_shared<const ModelGeometry>(buildGeometry(model));
    lastMark = mark;
    if (!mark.isEmpty()) // else nobody knows whose it is
        last = geometry;
    return geometry;
}

} // namespace aniview
} // namespace vkd
