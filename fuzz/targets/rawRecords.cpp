#include "FuzzTarget.h"

#include <record/designStore.h>
#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>
#include <VKD_H_ProjectDialogPage.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>
#include <vkd_zob_keys.h>

using namespace vkd::zob;

namespace {
constexpr ZobHandle Scratch = ZobHandle::scratch();
constexpr KeyPair Pairs[] = {
    keys::CrossSections, keys::System, keys::Groups,      keys::LoadCases,   keys::SecondaryGroups,
    keys::Bars,          keys::Nodes,  keys::Supports,    keys::Axes,        keys::Points,
    keys::Lines,         keys::Areas,  keys::SectionCuts, keys::DesignLines, keys::Beams,
    keys::Trusses,       keys::Cables, keys::Springs,     keys::BeamTendons, keys::QuadTendons,
    keys::Quads,         keys::Design, keys::Bricks,      keys::Camera,      keys::PickedGroups,
    keys::dialogPage(1)};

/// Reads all data that programs read from a project, and writes back the design records.
void readAll()
{
    vkd::dbo::readModel(Scratch);
    vkd::dbo::readLoadCases(Scratch);
    vkd::dbo::getAnimatorPerspektive(Scratch.index(), 0);
    VKD_H_ProjectDialogPage(Scratch, 1).getEntry(QStringLiteral("MerPara1"), QString());
    const auto scratch = VKD_H_ZOBDoc::scratch();
    plib::DesignParameterData data, again;
    data.doc = data.designDoc = again.doc = again.designDoc = scratch.get();
    plib::readRowsFromZob(data);
    bool isConverted = false;
    plib::writeRowsToZob(data, isConverted);
    plib::readRowsFromZob(again);
    FUZZ_CHECK(again.rows.size() <= data.rows.size() + 1);
}
} // namespace

/// The input is a sequence of records, each of which consists of a key pair index, a length and the
/// bytes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const int none = 0;
    for (const KeyPair& pair : Pairs)
        vkd_zob_put(Scratch.index(), pair.key1, pair.key2, "", &none, 0);
    for (size_t at = 0; at + 2 <= size;) {
        const KeyPair pair = Pairs[bytes[at] % std::size(Pairs)];
        const int length = int(std::min<size_t>(bytes[at + 1], size - at - 2));
        vkd_zob_put(Scratch.index(), pair.key1, pair.key2, bytes + at + 2, &length, 1);
        at += 2 + size_t(length);
    }
    readAll();
    return 0;
}
