#pragma once

#include "output/OutputSettings.h"

#include <functional>

namespace plib {

/// The tags in the saved string of an output page.
namespace savedtag {
constexpr char Scale[] = "Scale";
constexpr char Font[] = "Font";
constexpr char Fill[] = "Fill";
constexpr char Format[] = "Format";
constexpr char Pictures[] = "Part";
constexpr char View[] = "View";
constexpr char Camera[] = "Camera"; ///< in the format PersistentCamera
constexpr char Plots[] = "List_4";  ///< selection text
} // namespace savedtag

/// Returns the value of the tagged string with this tag, or a null string if there is none.
using SavedPart = std::function<QString(const char* tag)>;

/// Applies the saved settings. A setting does not change if its tag is missing or its value is
/// invalid. The number of pictures is applied after the format and overrides the number set by the
/// format.
void applySavedSettings(const SavedPart& part, OutputSettings* settings);

} // namespace plib
