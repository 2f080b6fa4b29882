#pragma once

#include "vkd_q_export.h"

#include <string>

/// Selects the program whose message texts vkd_lib_convtext() returns from now on. They come from
/// the file `texts/<program>.txt` on the search path; each file is read once. A program without
/// this file has no texts, and a line is logged in the category vkd.text.
///
/// The file is UTF-8 with one line `class|key|German|English` per text. Empty lines and lines that
/// begin with "#" are ignored. If two lines have the same class and key, the first one wins.
VKD_Q_EXPORT void vkd_lib_opentext(const char* program);

/// Returns the text of a class (0, 1 and 4 are in use) for a key of three Latin-1 characters, as
/// UTF-8. `language` is 0 for German and 1 for English. Returns an empty string if there is no such
/// text.
VKD_Q_EXPORT std::string vkd_lib_convtext(int textClass, int language, const char* key);
