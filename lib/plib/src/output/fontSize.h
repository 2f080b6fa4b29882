#pragma once

#include <StructLineEdit.h>

namespace plib {

/// Returns the properties of the font size field, in millimetres: its limits and its default value.
StructLineEdit fontSizeField();

/// Converts a font size typed by a user to the format that the page stores: "2,5" becomes "2.5".
/// Returns null if the field would refuse the text.
QString fontSizeText(const QString& typed);

} // namespace plib
