#pragma once

#include <QString>

namespace workbench {

class WindowMessages;

/// Writes a string to a file in UTF-8. An existing file is replaced only after the whole text has
/// been written. If the file cannot be written, shows an error message and returns false.
bool saveTextFile(const QString& path, const QString& text, WindowMessages* messages);

} // namespace workbench
