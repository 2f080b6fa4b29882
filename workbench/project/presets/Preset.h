#pragma once

#include <QString>
#include <QVariantMap>
#include <QVector>

#include <optional>

namespace workbench {

/// The kinds of presets. Each kind has its own files and entries.
/// - A preset of design parameters contains numbers in base units, keyed by field name, with an
///   invalid value for "not set", as exchanged with the page (see docs/embedding.md). Applying a
///   preset does not change parameters that it does not contain.
/// - A preset of plots contains lists of captions, keyed by plot identifier. The captions are for
///   display only, in the language in which the preset was created.
enum class PresetKind { DesignParameters, Plots };

struct Preset
{
    QString name; ///< not empty, unique in its place
    QString description;
    QVariantMap contents; ///< not empty
};

using PresetList = QVector<Preset>;

/// The parts of a preset of design parameters, which can be applied separately.
enum class PresetPart { Type, Directions, Cover, Bars, Limits, Cracks };
constexpr PresetPart PresetParts[] = {PresetPart::Type, PresetPart::Directions, PresetPart::Cover,
                                      PresetPart::Bars, PresetPart::Limits,     PresetPart::Cracks};

/// Returns the part that contains the parameter with this name, or nothing if there is no such
/// parameter.
std::optional<PresetPart> partOf(const QString& parameter);

/// Returns the parameters of these parts.
QVariantMap ofParts(const QVariantMap& parameters, const QVector<PresetPart>& parts);

/// Returns the parts of which `parameters` contains values, in the order of PresetParts.
QVector<PresetPart> partsIn(const QVariantMap& parameters);

/// These functions return the preset with this name, or null.
const Preset* findPreset(const PresetList& presets, const QString& name);
Preset* findPreset(PresetList& presets, const QString& name);

/// Returns the name, with a number appended if a preset already has this name.
QString unusedName(const PresetList& presets, const QString& name);

} // namespace workbench
