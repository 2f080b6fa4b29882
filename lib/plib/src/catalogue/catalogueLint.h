#pragma once

#include "GraphicalOutputRecord.h"

#include <QString>

#include <vector>

class QIODevice;

namespace plib {

/// Something about a line of a catalogue that its writer will hardly have meant.
struct CatalogueFinding
{
    int line; ///< in the file, from 1
    QString text;
};

/// Reads a catalogue as parseCatalogue() does, and tells what that keeps to itself: dropped lines,
/// shifted columns, scripts carried over, words that mean nothing, plots that never show or never
/// make a line, and identifiers that cannot carry a stored choice. `records` gets the records, if
/// given. Captions are those of the desktop's language.
std::vector<CatalogueFinding> lintCatalogue(QIODevice& device,
                                            std::vector<GraphicalOutputRecord>* records);

} // namespace plib
