#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <QString>

#include <vector>

class QIODevice;

namespace plib {

/// A probable mistake in a line of a catalogue.
struct CatalogueFinding
{
    int line; ///< in the file, counted from 1
    QString text;
};

/// Reads a catalogue as parseCatalogue() does, and reports the problems that it ignores: dropped
/// lines, shifted columns, inherited scripts, unknown words, plots that are never shown or never
/// produce a script line, and identifiers that cannot identify a stored choice. `records` may be
/// null; otherwise the records are stored there. Captions are in the desktop's language.
std::vector<CatalogueFinding> lintCatalogue(QIODevice& device,
                                            std::vector<GraphicalOutputRecord>* records);

} // namespace plib
