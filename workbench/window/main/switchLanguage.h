#pragma once

#include <vkd_language.h>

namespace workbench {

class DesignEditor;
class OutputEditor;
class TextOutputEditor;

/// The editors whose pages and dialogs are replaced when the language is switched.
struct Editors
{
    DesignEditor* design;
    OutputEditor* output;
    TextOutputEditor* textOutput;
};

/// Switches the language of the desktop and saves it in the program settings. Pages and dialogs
/// translate their strings only when they are created, so they are replaced; their contents are
/// preserved.
void switchLanguage(vkd::Language language, const Editors& editors);

} // namespace workbench
