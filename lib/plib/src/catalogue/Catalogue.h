#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <vkd_language.h>

#include <functional>
#include <vector>

namespace plib {

/// The catalogue of plots, shared by all output trees of the process.
struct Catalogue
{
    std::vector<GraphicalOutputRecord> list; ///< in file order; only ever grows
    int catalogueLanguage = -1;              ///< language of the last load that succeeded
};

/// Returns the catalogue of the process.
Catalogue& sharedCatalogue();

/// Shows an error to the user; called once at most for each load.
using ShowError = std::function<void(const QString& title, const QString& text)>;

/// Loads the catalogue for the language, unless that is done already. The file is
/// `graphicaloutput.data` on the search path. On purpose, the records of a second language are
/// appended to those of the first. Calls `showError` and returns false if the file is missing or
/// cannot be opened; the next call then tries again.
bool loadCatalogue(Catalogue& catalogue, vkd::Language language, const ShowError& showError);

} // namespace plib
