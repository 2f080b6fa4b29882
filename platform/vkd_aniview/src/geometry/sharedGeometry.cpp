#include "geometry/sharedGeometry.h"

#include <vkd_dbo_model.h>
#include <vkd_zob.h>

#include <chrono>
#include <future>

namespace vkd {
namespace aniview {

namespace {
/// The most recent geometry and the mark of its model. The mark is never empty.
struct Known
{
    QByteArray mark;
    std::weak_ptr<const ModelGeometry> geometry;
};

/// Builds the geometry in a separate thread, because a million elements take seconds, and meanwhile
/// calls `goOn`. Returns null if `goOn` returned false.
std::shared_ptr<const ModelGeometry> build(const dbo::Model& model, const VkdGoOn& goOn)
{
    constexpr std::chrono::milliseconds BetweenQuestions(20);
    const auto make = [&model] { return std::make_shared<ModelGeometry>(buildGeometry(model)); };
    if (!goOn)
        return make();
    bool goesOn = goOn(0);
    if (!goesOn)
        return nullptr;
    auto making = std::async(std::launch::async, make);
    while (making.wait_for(BetweenQuestions) != std::future_status::ready)
        goesOn = goesOn && goOn(0);
    return goesOn ? making.get() : nullptr;
}
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
    const auto geometry = build(model, goOn);
    if (!geometry && status)
        *status = VkdStatus{VKD_ZOB_CANCELLED, QString()};
    if (geometry && !mark.isEmpty()) // empty if there is no model or only part of it was read
        last = {mark, geometry};
    return geometry;
}

} // namespace aniview
} // namespace vkd
