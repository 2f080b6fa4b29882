#pragma once

#include <OutputSettings.h>

namespace workbench {

/// Sets fields of the record by arguments such as `scaleMode=0`. A scale that is given by its text
/// or its row alone gets the other one too. An unknown name or a value out of range throws a
/// CommandError.
void applySettings(const QStringList& arguments, plib::OutputSettings* settings);

/// "scaleMode (0 to 1), ..." for the help.
QString settingsHelp();

} // namespace workbench
