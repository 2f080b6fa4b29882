#pragma once

#include "vkd_q_export.h"

#include <string>

/// Selects the program whose messages vkd_lib_convtext() returns in subsequent calls. The messages
/// are read from the file `texts/<program>.txt` in the search path; each file is read only once. If
/// the file is missing, the program has no messages, and a line is logged in the category vkd.text.
///
/// The file is encoded in UTF-8 and contains one line `class|key|German|English` per message. Empty
/// lines and lines that begin with "#" are ignored. If two lines have the same class and key, the
/// first one wins.
VKD_Q_EXPORT void vkd_lib_opentext(const char* program);

/// Returns the message with this class (0, 1 or 4) and key (three Latin-1 characters), encoded in
/// UTF-8. `language` is 0 for German and 1 for English. Returns an empty string if there is no such
/// message.
VKD_Q_EXPORT std::string vkd_lib_convtext(int textClass, int language, const char* key);
