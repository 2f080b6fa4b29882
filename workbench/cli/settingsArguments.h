#pragma once

#include <output/OutputSettings.h>

namespace workbench {

/// Changes the settings by arguments such as `scaleMode=0`, one after the other, each as its
/// control on a page does: a scale from the list selects the engineering scale, a format its
/// pictures. An unknown name, a value out of range, and a setting that the kind of page does not
/// have throw a CommandError.
void applySettings(const QStringList& arguments, plib::OutputSettings* settings);

/// Returns "scaleMode (0 to 1), ..." for the help.
QString settingsHelp();

} // namespace workbench
