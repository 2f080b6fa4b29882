#include "FuzzTarget.h"

#include <output/fontSize.h>
#include <StructLineEdit.h>
#include <vkd_h_groupInput.h>
#include <vkd_h_numberText.h>

#include <algorithm>
#include <cmath>

namespace {
/// Checks that an accepted number is finite and within the limits, and that its text is accepted,
/// too.
void checkNumber(const QString& text, const StructLineEdit& field)
{
    const VkdNumberReading read = vkd_h_readNumber(text, field);
    if (read.state != VkdNumberState::Accepted || vkd_h_isNotSet(read.value, field))
        return;
    FUZZ_CHECK(std::isfinite(read.value));
    FUZZ_CHECK(float(read.value) >= float(field.minimum));
    FUZZ_CHECK(float(read.value) <= float(field.maximum));
    const QString shown = vkd_h_numberText(read.value, field);
    const VkdNumberReading again = vkd_h_readNumber(shown, field);
    FUZZ_CHECK(again.state == VkdNumberState::Accepted || again.state == VkdNumberState::TooLarge ||
               again.state == VkdNumberState::TooSmall); // a limit was rounded
    FUZZ_CHECK(!shown.isEmpty() && !shown.contains(QLatin1Char('\n')));
    FUZZ_CHECK(again.state != VkdNumberState::Accepted ||
               vkd_h_numberText(again.value, field) == shown);
}

void checkGroups(const QString& text)
{
    static const std::vector<int> groups{1, 2, 3, 7, 999};
    const vkd::h::GroupInput input = vkd::h::readNumbers(text, groups);
    FUZZ_CHECK(
        std::includes(groups.begin(), groups.end(), input.groups.begin(), input.groups.end()));
    static const vkd::h::GroupNames names({0x20202041, 0x20424142});
    vkd::h::readNumbersAndNames(text, groups, names);
}
} // namespace

/// The first byte selects the dimension.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const int codes[] = {-1, 5, 1001, 1021, 1023, 1024, 1026, 1092};
    if (size == 0)
        return 0;
    const QString text = fuzz::textOf(bytes + 1, size - 1);
    checkNumber(text, vkd_h_defaultStructLineEdit(codes[bytes[0] % std::size(codes)]));
    checkGroups(text);
    const QString font = plib::fontSizeText(text);
    FUZZ_CHECK(font.isNull() || plib::fontSizeText(font) == font);
    return 0;
}
