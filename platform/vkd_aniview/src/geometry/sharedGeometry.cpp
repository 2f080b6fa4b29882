#include "geometry/sharedGeometry.h"

#include <vkd_dbo_model.h>
#include <vkd_zob.h>

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

std::shared_ptr<const ModelGeometry> sharedGeometry(ZobHandle project, const VkdGoOn& goOn,
                                                    VkdStatus* status)
{
    static Known last;
    if (project.isNull())
        return std::make_shared<ModelGeometry>();
    if (auto known = last.geometry.lock(); known && dbo::modelMark(project) == last.mark)
        return known;
    VkdStatus read;
    QByteArray mark;
    const dbo::Model model = dbo::readModel(project, goOn, &mark, &read);
    if (status)
        *status = read;
    if (read.code == VKD_ZOB_CANCELLED)
        return nullptr;
    auto geometry = std::make_shared<const ModelGeometry>(buildGeometry(model));
    if (!mark.isEmpty()) // an empty mark: no model or only part of one
        last = {mark, geometry};
    return geometry;
}

} // namespace aniview
} // namespace vkd
