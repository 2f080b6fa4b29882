#pragma once

#include <output/OutputSettings.h>

namespace workbench {

/// Applies arguments such as `scaleMode=0` to the settings, in the given order. Each argument has
/// the same effect as its control on a page: choosing a scale from the list selects the engineering
/// scale, and choosing a format sets its number of pictures. Throws a CommandError for an unknown
/// name, a value out of range, or a setting that the kind of page does not have.
void applySettings(const QStringList& arguments, plib::OutputSettings* settings);

/// Returns the settings and their ranges as text for the help: "scaleMode (0 to 1), ...".
QString settingsHelp();

} // namespace workbench
