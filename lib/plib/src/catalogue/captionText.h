#pragma once

#include <QString>
#include <QStringView>

namespace plib {

/// Returns whether a caption of the catalogue begins with a text token ("&", "^" or "$" and three
/// characters, optionally after three qualifiers) or with an identifier ("@" and three characters).
bool isKeyText(QStringView text);

/// Returns whether the characters starting at position 3 are themselves a key text. In this case,
/// three qualifiers precede the token.
bool hasQualifier(QStringView keyText);

/// Translates a key text to a caption in the desktop language, using the messages of the program
/// selected by vkd_lib_opentext(). Returns a null string if the field does not begin with a token
/// of the text service, or an empty string if the service has no text for the token. Does not trim
/// the caption.
QString captionText(QStringView field);

/// Returns the caption that a tree shows for a key text: the trimmed captionText(), or `fallback`
/// if there is none.
QString captionOr(QStringView field, QStringView fallback);

/// Returns the caption with this identifier in the desktop language, or `title` if the identifier
/// is not a key text.
QString captionOfId(const QString& id, const QString& title);

} // namespace plib
