#pragma once

#include "output/OutputSettings.h"

#include <functional>

namespace plib {

/// The tags of the parts in the saved string of an output page.
namespace kepttag {
constexpr char Scale[] = "Scale";
constexpr char Font[] = "Font";
constexpr char Fill[] = "Fill";
constexpr char Format[] = "Format";
constexpr char Pictures[] = "Part";
constexpr char View[] = "View";
constexpr char Camera[] = "Camera"; ///< in the persistent format
constexpr char Plots[] = "List_4";  ///< selection text
} // namespace kepttag

/// Returns the text of the part with this tag, null if there is none.
using KeptPart = std::function<QString(const char* tag)>;

/// Applies the parts that are settings. A setting is unchanged if its part is missing or invalid.
/// The number of pictures is applied after the format and overrides the number set by the format.
void applyKeptSettings(const KeptPart& part, OutputSettings* settings);

} // namespace plib
