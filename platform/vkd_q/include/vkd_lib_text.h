#pragma once

#include "vkd_q_export.h"

#include <string>

/// Selects the program whose message texts vkd_lib_convtext() gives from now on. They come from the
/// file `texts/<program>.txt` on the search path, which is read once for each place it is found in.
/// A program without such a file has no texts; a log line of the category vkd.text says so.
///
/// The file is UTF-8 with a line `class|key|German|English` for each text; empty lines and lines
/// beginning with "#" count for nothing. Of two lines with the same class and key the first holds.
VKD_Q_EXPORT void vkd_lib_opentext(const char* program);

/// The text of the class (0, 1 or 4 in use) for a key of three characters in Latin-1, as UTF-8.
/// `language` is 0 for German and 1 for English. Empty if there is no such text.
VKD_Q_EXPORT std::string vkd_lib_convtext(int textClass, int language, const char* key);
