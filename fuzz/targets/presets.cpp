#include "FuzzTarget.h"

#include <project/presets/plotPresets.h>
#include <project/presets/presetJson.h>

using namespace workbench;

/// Each error message for a file with presets must have one line. It must be possible to write
/// presets that were read, and to read them back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QByteArray json = fuzz::bytesOf(bytes, size);
    for (const PresetKind kind : {PresetKind::DesignParameters, PresetKind::Plots})
        for (const vkd::Language language : {vkd::Language::English, vkd::Language::German}) {
            const PresetReading read = readPresets(kind, json, language);
            if (!read.fault.isEmpty()) {
                FUZZ_CHECK(read.presets.isEmpty());
                fuzz::checkReason(read.fault);
                continue;
            }
            const QByteArray written = presetsJson(kind, read.presets);
            const PresetReading again = readPresets(kind, written, language);
            FUZZ_CHECK(again.fault.isEmpty() && again.presets.size() == read.presets.size());
            FUZZ_CHECK(presetsJson(kind, again.presets) == written);
            for (const Preset& preset : read.presets) {
                FUZZ_CHECK(!preset.name.isEmpty() && !preset.contents.isEmpty());
                partsIn(preset.contents);
                captionsOf(preset.contents, {});
            }
        }
    return 0;
}
