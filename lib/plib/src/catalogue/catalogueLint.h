#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <QString>

#include <vector>

class QIODevice;

namespace plib {

/// A probable error in a line of a catalogue.
struct CatalogueFinding
{
    int line; ///< line number in the file, starting at 1
    QString text;
};

/// Reads a catalogue like parseCatalogue() and reports the problems that parseCatalogue() ignores:
/// skipped lines, shifted columns, inherited scripts, unknown words, plots that are never shown or
/// never produce a script line, and identifiers that are ambiguous or unusable in a stored
/// selection. If `records` is not null, stores the accepted records there. Captions are in the
/// desktop language.
std::vector<CatalogueFinding> lintCatalogue(QIODevice& device,
                                            std::vector<GraphicalOutputRecord>* records);

} // namespace plib
