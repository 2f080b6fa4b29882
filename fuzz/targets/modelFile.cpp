#include "FuzzTarget.h"

#include <vkd_dbo_model.h>
#include <vkd_zob.h>

using namespace vkd::dbo;

namespace {
/// Returns whether the models have the same number of items in each stored list.
bool areAlike(const Model& a, const Model& b)
{
    const auto sizes = [](const Model& m) {
        return QVector<qint64>{
            m.nodes.size(),       m.supports.size(),       m.crossSections.size(),
            m.groups.size(),      m.beams.size(),          m.trusses.size(),
            m.cables.size(),      m.springs.size(),        m.quads.size(),
            m.bricks.size(),      m.quadTendons.size(),    m.points.size(),
            m.beamTendons.size(), m.lines.size(),          m.areas.size(),
            m.axes.size(),        m.sectionCuts.size(),    m.designLines.size(),
            m.loadCases.size(),   m.secondaryGroups.size()};
    };
    return sizes(a) == sizes(b) && a.system.title == b.system.title &&
           a.system.kindOfSystem == b.system.kindOfSystem;
}
} // namespace

/// It must be possible to store any model that was read from a file, and to read it back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QString path = fuzz::file("model.json", fuzz::bytesOf(bytes, size));
    Model model;
    const VkdStatus read = readModelFile(path, vkd::Language::German, &model);
    if (!read.isOk()) {
        FUZZ_CHECK(read.code == VKD_ZOB_DAMAGED && areAlike(model, Model()));
        fuzz::checkReason(read.reason);
        return 0;
    }
    constexpr ZobHandle Scratch = ZobHandle::scratch();
    FUZZ_CHECK(storeModel(Scratch, model).isOk());
    VkdStatus readBack;
    FUZZ_CHECK(areAlike(readModel(Scratch, VkdGoOn(), nullptr, &readBack), model));
    FUZZ_CHECK(readBack.isOk());
    return 0;
}
