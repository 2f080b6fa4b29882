#include "FuzzTarget.h"

#include <radiogroup/radioChoice.h>

/// If a string selects a button, the string that is written for this button must select it again.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const std::optional<int> id = plib::chosenId(fuzz::textOf(bytes, size));
    FUZZ_CHECK(!id || (*id >= -1 && *id <= 9));
    if (id && *id >= 0)
        FUZZ_CHECK(plib::chosenId(plib::choiceText({*id})) == id);
    return 0;
}
