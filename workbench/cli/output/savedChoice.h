#pragma once

#include "cli/CommandLine.h"
#include "project/output/OutputList.h"

#include <output/OutputSettings.h>

namespace workbench {

/// Returns the options that select the initial choice of plots: kind of page, --output, --selection
/// and --proposed.
std::vector<CommandLine::Option> choiceOptions();
int progname(const CommandLine& line);

/// Returns the outputs of a project. Throws a CommandError if they cannot be read.
OutputList savedOutputs(ZobHandle project);

/// Returns the state of the output given by --output or, without this option, of the first output.
/// Returns an empty state with --proposed, and for kinds of page that the window does not use.
OutputState savedChoice(const CommandLine& line, ZobHandle project);

/// Returns the saved settings. Settings that were not saved have the initial values of a new page.
plib::OutputSettings savedSettings(const CommandLine& line, const OutputState& saved);

/// Sets the desktop's camera to the saved camera. The script uses the desktop's camera for the
/// user-defined view.
void restoreCamera(const OutputState& saved);

/// Returns the selection text from the file given by --selection or, without this option, the saved
/// text. An empty string stands for the catalogue's default choice.
QString chosenPlots(const CommandLine& line, const OutputState& saved);

} // namespace workbench
