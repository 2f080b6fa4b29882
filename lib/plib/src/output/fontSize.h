#pragma once

#include <StructLineEdit.h>

namespace plib {

/// Returns the description of the font size field, with its limits and its default value in
/// millimetres.
StructLineEdit fontSizeField();

/// Converts a font size typed by the user to the format that the page stores: "2,5" becomes "2.5".
/// Returns a null string if the field would refuse the input.
QString fontSizeText(const QString& typed);

} // namespace plib
