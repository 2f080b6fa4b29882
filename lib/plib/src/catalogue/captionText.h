#pragma once

#include <QString>
#include <QStringView>

namespace plib {

/// Whether a caption of the catalogue begins with a text token ("&", "^" or "$" and three
/// characters, perhaps behind three qualifiers) or with an identifier ("@" and three characters).
bool isKeyText(QStringView text);

/// Whether the characters from position 3 are themselves a key text, so that three qualifiers stand
/// in front of the token.
bool hasQualifier(QStringView keyText);

/// The caption that a key text stands for, in the language of the desktop, with the texts of the
/// program selected by vkd_lib_opentext(). Null if the field begins with no token of the text
/// service; empty if the service has no text. Not trimmed.
QString captionText(const QString& field);

} // namespace plib
