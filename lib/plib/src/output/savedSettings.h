#pragma once

#include "output/OutputSettings.h"

#include <functional>

namespace plib {

/// The tags of the parts in the saved string of an output page.
namespace savedtag {
constexpr char Scale[] = "Scale";
constexpr char Font[] = "Font";
constexpr char Fill[] = "Fill";
constexpr char Format[] = "Format";
constexpr char Pictures[] = "Part";
constexpr char View[] = "View";
constexpr char Camera[] = "Camera"; ///< in the persistent format
constexpr char Plots[] = "List_4";  ///< selection text
} // namespace savedtag

/// Returns the text of the part with this tag, null if there is none.
using SavedPart = std::function<QString(const char* tag)>;

/// Applies the parts that are settings. A setting is unchanged if its part is missing or invalid.
/// The number of pictures is applied after the format and overrides the number set by the format.
void applySavedSettings(const SavedPart& part, OutputSettings* settings);

} // namespace plib
