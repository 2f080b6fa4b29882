#pragma once

#include "vkd_h_export.h"

#include <QString>

class VKD_H_PluginParameter;

/// Returns the text that begins the block of a batch program, including line ends: a line with the
/// program and the caption of the block, and the head line with the title of the output. `language`
/// selects the keywords, 0 German and 1 English; it is setting 108 (vkd_lib_value.h). `parameter`
/// and `mode` belong to the suite's interface and are ignored.
VKD_H_EXPORT QString vkd_h_generatePROG(VKD_H_PluginParameter* parameter, const QString& program,
                                        const QString& title, const QString& caption, int language,
                                        int mode);

/// Returns the text that ends the block, without a line end; 0 German, 1 English.
VKD_H_EXPORT QString vkd_h_generateENDE(int language);
