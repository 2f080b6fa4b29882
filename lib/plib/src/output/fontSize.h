#pragma once

#include <StructLineEdit.h>

namespace plib {

/// The field of the font size, in mm: its limits, and the size of a new page.
StructLineEdit fontSizeField();

/// A font size as somebody typed it, in the form that the page computes with and stores: "2,5"
/// becomes "2.5". Null if the field refuses the text.
QString fontSizeText(const QString& typed);

} // namespace plib
