#pragma once

#include "OutputSettings.h"

#include <functional>

namespace plib {

/// The tags of the parts in the string that an output page keeps.
namespace kepttag {
constexpr char Scale[] = "Scale";
constexpr char Font[] = "Font";
constexpr char Fill[] = "Fill";
constexpr char Format[] = "Format";
constexpr char Pictures[] = "Part";
constexpr char View[] = "View";
constexpr char Camera[] = "Camera"; ///< persistent form
constexpr char Plots[] = "List_4";  ///< selection text
} // namespace kepttag

/// The text of the part with this tag, null if there is none.
using KeptPart = std::function<QString(const char* tag)>;

/// Applies the parts that are settings; what is missing or names no entry leaves them as they are.
/// The number of pictures comes behind the format and wins over what the format does to it.
void applyKeptSettings(const KeptPart& part, OutputSettings* settings);

} // namespace plib
