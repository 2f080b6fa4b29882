#pragma once

#include "cli/CommandLine.h"
#include "project/OutputState.h"

#include <output/OutputSettings.h>

namespace workbench {

/// Returns the options that select the initial choice of plots: kind of page, --selection and
/// --proposed.
std::vector<CommandLine::Option> choiceOptions();
int progname(const CommandLine& line);

/// Returns the state that the window saved in the project at this database index. With --proposed,
/// and for other kinds of page than the window's, returns the state of a project without one.
OutputState savedChoice(const CommandLine& line, int index);

/// Returns the settings of a new page, replaced by the saved ones.
plib::OutputSettings savedSettings(const CommandLine& line, const OutputState& saved);

/// Makes the saved camera the desktop's camera, from which the script takes the user-defined view.
void restoreCamera(const OutputState& saved);

/// Returns the selection text of the file that was given, otherwise the saved one; empty for the
/// catalogue's default choice.
QString chosenPlots(const CommandLine& line, const OutputState& saved);

} // namespace workbench
