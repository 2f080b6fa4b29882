#pragma once

#include "GraphicalOutputRecord.h"

#include <functional>
#include <vector>

namespace plib {

/// The catalogue as all output trees of the process share it.
struct Catalogue
{
    std::vector<GraphicalOutputRecord> list; ///< in file order; only ever grows
    int catalogueLanguage = -1;              ///< language of the last load that succeeded
};

/// The catalogue of the process.
Catalogue& sharedCatalogue();

/// Shows a failure to the user; called once at most.
using ShowError = std::function<void(const QString& title, const QString& text)>;

/// Makes sure that the catalogue is loaded for the language, 0 German or 1 English, from the file
/// `graphicaloutput.data` on the search path. Loading a second language keeps the records of the
/// first one in front of the new ones, on purpose. False, with `showError` called, if the file is
/// not there or cannot be opened; the next call then tries again.
bool loadCatalogue(Catalogue& catalogue, int language, const ShowError& showError);

} // namespace plib
