#pragma once

#include <QString>
#include <QStringView>

namespace plib {

/// Returns whether a caption of the catalogue begins with a text token ("&", "^" or "$" and three
/// characters, optionally after three qualifiers) or with an identifier ("@" and three characters).
bool isKeyText(QStringView text);

/// Returns whether the characters from position 3 are themselves a key text. In that case three
/// qualifiers precede the token.
bool hasQualifier(QStringView keyText);

/// Returns the caption for a key text in the language of the desktop, from the texts of the program
/// selected by vkd_lib_opentext(). Null if the field does not begin with a token of the text
/// service, empty if the service has no text. The caption is not trimmed.
QString captionText(const QString& field);

/// Returns the caption that a tree shows for a key text, in the language of the desktop: its
/// trimmed captionText(), or `fallback` if it has no text.
QString captionOr(const QString& field, QStringView fallback);

} // namespace plib
