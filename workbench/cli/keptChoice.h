#pragma once

#include "cli/CommandLine.h"
#include "project/OutputState.h"

#include <output/OutputSettings.h>

namespace workbench {

/// The options by which a command says which plots it starts from: kind of page, --selection and
/// --proposed.
std::vector<CommandLine::Option> choiceOptions();
int progname(const CommandLine& line);

/// What the window keeps in the project at this database index; as in a project that keeps nothing
/// with --proposed, and for other kinds of page than the window's.
OutputState keptChoice(const CommandLine& line, int index);

/// The settings of a new page with the kept ones over them. The kept camera becomes that of the
/// desktop.
plib::OutputSettings keptSettings(const CommandLine& line, const OutputState& kept);

/// The selection text of the file that was given, else the kept one; empty for what the catalogue
/// proposes.
QString chosenPlots(const CommandLine& line, const OutputState& kept);

} // namespace workbench
