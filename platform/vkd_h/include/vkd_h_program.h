#pragma once

#include "vkd_h_export.h"

#include <QString>

class VKD_H_PluginParameter;

/// Returns the text that begins the block of a batch program, including newlines: a line with the
/// program name and the caption of the block, and the head line with the title of the output.
/// `language` selects the keywords, 0 for German and 1 for English; callers pass setting 108
/// (vkd_lib_value.h). `parameter` and `mode` belong to the suite's interface and are ignored.
VKD_H_EXPORT QString vkd_h_generatePROG(VKD_H_PluginParameter* parameter, const QString& program,
                                        const QString& title, const QString& caption, int language,
                                        int mode);

/// Returns the text that ends the block, without a newline. `language` is 0 for German and 1 for
/// English.
VKD_H_EXPORT QString vkd_h_generateENDE(int language);
