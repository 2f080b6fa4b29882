#include "FuzzTarget.h"

#include <catalogue/CatalogueLines.h>
#include <catalogue/CatalogueParser.h>

#include <algorithm>

using plib::CatalogueParser;

namespace {
bool areEqual(const plib::GraphicalOutputRecord& a, const plib::GraphicalOutputRecord& b)
{
    const auto numbers = [](const plib::GraphicalOutputRecord& r) {
        return std::array{r.prog1,    r.prog2,   r.prog3,     r.number7,  r.ctrl,
                          r.rowClass, r.rowMark, r.preselect, r.viewKind, r.systemMask};
    };
    const auto texts = [](const plib::GraphicalOutputRecord& r) {
        return std::array{r.title1, r.title2, r.title3,   r.contentTag,   r.id1,          r.id2,
                          r.id3,    r.text11, r.caseWord, r.scriptGerman, r.scriptEnglish};
    };
    return numbers(a) == numbers(b) && texts(a) == texts(b);
}
} // namespace

/// The result must not depend on columns that are reused from the preceding line, or on whether the
/// line is split as bytes or as text.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QByteArray input = fuzz::bytesOf(bytes, size);
    const QByteArray line =
        input.left(input.indexOf('\n')).left(plib::CatalogueLines::MaximumLength);
    CatalogueParser parser;
    const CatalogueParser::Outcome outcome = parser.parseLine(line.constData(), line.size());
    const plib::GraphicalOutputRecord record = parser.record();
    FUZZ_CHECK(parser.parseLine(line.constData(), line.size()) == outcome);
    FUZZ_CHECK(areEqual(parser.record(), record));
    if (parser.partCount() < CatalogueParser::UsedParts)
        return 0;
    const QByteArray text = line + "|\xC3\xA4"; // no longer ASCII
    CatalogueParser other;
    FUZZ_CHECK(other.parseLine(text.constData(), text.size()) == outcome);
    FUZZ_CHECK(areEqual(other.record(), record));
    return 0;
}
