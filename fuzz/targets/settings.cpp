#include "FuzzTarget.h"

#include "cli/CommandLine.h"
#include "cli/output/settingsArguments.h"

/// Each line of the input is an argument for --set. The message for a refused argument must have
/// one line, and a page must be able to show accepted settings.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    plib::OutputSettings settings;
    settings.variant = size % 2 ? VKD_P_GraphicalOutput_Standard : VKD_P_GraphicalOutput_Split;
    settings.hasFormat = size % 2;
    try {
        workbench::applySettings(fuzz::textOf(bytes, size).split(QLatin1Char('\n')), &settings);
    } catch (const workbench::CommandError& error) {
        fuzz::checkReason(error.text);
    }
    FUZZ_CHECK(settings.scaleIndex >= 0 && settings.scaleIndex < plib::scaleRows().size());
    FUZZ_CHECK(settings.pageSplitId >= 0 && settings.pageSplitId <= 5);
    FUZZ_CHECK(int(settings.formatId) <= 1 && int(settings.picturesId) <= 1);
    FUZZ_CHECK(int(settings.viewId) >= 0 && int(settings.viewId) <= 4);
    FUZZ_CHECK(!settings.fontSizeText.isEmpty());
    return 0;
}
