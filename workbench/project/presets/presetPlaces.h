#pragma once

#include "project/presets/presetJson.h"

#include <ZobHandle.h>

#include <functional>

namespace workbench {

/// The places in which presets are stored. The user's presets are in a file in the application data
/// folder. A project's presets are among the entries in the project file. Presets of plots belong
/// only to the user, because a project contains its outputs anyway.
enum class PresetPlace { Supplied, User, Project };

using PresetChange = std::function<void(PresetList&)>;

/// Reads the presets from a location, with their translations into the desktop language if there
/// are any. If nothing has been stored there, no presets are returned. `project` is used only for
/// its own presets; it may be null.
PresetReading presetsOf(PresetKind kind, PresetPlace place, ZobHandle project);

/// Reads the presets of a place again, changes and stores them. Supplied presets cannot be changed.
/// Returns an empty string, or the reason why nothing was stored. Presets that cannot be read, for
/// instance because they have a newer version, are never overwritten.
QString changePresets(PresetKind kind, PresetPlace place, ZobHandle project,
                      const PresetChange& change);

/// Returns the path of the user's file.
QString userPresetsPath(PresetKind kind);

/// These functions read and write a file that the user exchanges with others. On failure, the fault
/// mentions the file by its name.
PresetReading importPresets(PresetKind kind, const QString& path);
QString exportPresets(PresetKind kind, const QString& path, const PresetList& presets);

} // namespace workbench
