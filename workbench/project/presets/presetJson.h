#pragma once

#include "project/presets/Preset.h"

#include <vkd_language.h>

#include <QByteArray>

namespace workbench {

/// The format of files with presets, and of the presets in a project: a JSON object with the
/// members "format", "version" and "presets". share/README.md describes it.
constexpr int PresetVersion = 1;
constexpr int LongestPresetName = 80;

/// Presets that were read. If there is a fault, there are no presets.
struct PresetReading
{
    PresetList presets;
    QString fault; ///< the first fault, a sentence in the desktop language
};

/// Reads presets of one kind. Names and descriptions are in the given language if the file contains
/// a translation. Rejects files of another kind or of a newer version and members that this version
/// does not know, but does not check names and values of parameters; the page does.
PresetReading readPresets(PresetKind kind, const QByteArray& json, vkd::Language language);

/// Returns presets in the current version of the format.
QByteArray presetsJson(PresetKind kind, const PresetList& presets);

} // namespace workbench
