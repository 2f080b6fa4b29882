#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <vkd_language.h>

#include <functional>
#include <vector>

namespace plib {

/// The name of the catalogue on the search path.
constexpr char CatalogueFile[] = "graphicaloutput.data";

/// The catalogue of plots, which all output trees of the process share.
struct Catalogue
{
    std::vector<GraphicalOutputRecord> list; ///< in file order; never shrinks
    int catalogueLanguage = -1;              ///< language of the last successful load
};

/// Returns the catalogue of the process.
Catalogue& sharedCatalogue();

/// Shows an error to the user. Called at most once per load.
using ShowError = std::function<void(const QString& title, const QString& text)>;

/// Loads the catalogue for the language, unless it is already loaded. The records of a second
/// language are intentionally appended to those of the first language. If the file is missing or
/// cannot be opened, calls `showError` and returns false; the next call tries again.
bool loadCatalogue(Catalogue& catalogue, vkd::Language language, const ShowError& showError);

} // namespace plib
