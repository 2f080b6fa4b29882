#pragma once

#include "vkd_h_export.h"

#include <QString>

class VKD_H_PluginParameter;

/// The text that opens the block of a batch program, with its line ends: a line with the program
/// and the caption of the block, and the head line with the title of the output. `language` chooses
/// the keywords, 0 German and 1 English; it is the setting 108 (vkd_lib_value.h). `parameter` and
/// `mode` are part of the suite's interface and change nothing here.
VKD_H_EXPORT QString vkd_h_generatePROG(VKD_H_PluginParameter* parameter, const QString& program,
                                        const QString& title, const QString& caption, int language,
                                        int mode);

/// The text that closes the block, without a line end; 0 German, 1 English.
VKD_H_EXPORT QString vkd_h_generateENDE(int language);
