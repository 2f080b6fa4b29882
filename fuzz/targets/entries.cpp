#include "FuzzTarget.h"

#include "project/numberTexts.h"

#include <record/designEntries.h>
#include <record/designRecord.h>

/// It must be possible to write a row or a list of numbers that was read from an entry, and to read
/// it back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QString text = fuzz::textOf(bytes, size);
    plib::DesignParameterRow row, again;
    row.record = again.record = plib::getDefaultMerPara(false);
    plib::parseEntry(text, row);
    plib::parseEntry(plib::entryText(row.record), again); // rounds to six digits
    const QString rounded = plib::entryText(again.record);
    plib::parseEntry(rounded, again);
    FUZZ_CHECK(plib::entryText(again.record) == rounded);

    const QSet<int> numbers = workbench::numbersFromSaved(text);
    FUZZ_CHECK(workbench::numbersFromSaved(workbench::savedNumbers(numbers)) == numbers);
    return 0;
}
