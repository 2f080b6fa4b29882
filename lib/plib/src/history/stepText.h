#pragma once

#include <QStringList>

namespace plib {

/// Returns the name of an undo step in the current language. The name consists of the context and
/// the source text of a translation, and an optional argument that replaces "%1". A name that has
/// only one part is not translated.
QString stepText(const QStringList& name);

/// Returns a name for stepText(). The source text must be marked with QT_TRANSLATE_NOOP.
QStringList stepName(const char* context, const char* sourceText);
QStringList stepName(const char* context, const char* sourceText, const QString& argument);

} // namespace plib
