#include "FuzzTarget.h"

#include <radiogroup/radioChoice.h>

/// A button that a text names is the one in its own text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const std::optional<int> id = plib::chosenId(fuzz::textOf(bytes, size));
    FUZZ_CHECK(!id || (*id >= -1 && *id <= 9));
    if (id && *id >= 0)
        FUZZ_CHECK(plib::chosenId(plib::choiceText({*id})) == id);
    return 0;
}
