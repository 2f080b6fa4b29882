#pragma once

#include <QString>
#include <QVariantMap>
#include <QVector>

#include <optional>

namespace workbench {

/// A named set of design parameters, as exchanged with the page (see docs/embedding.md): numbers in
/// base units by field name, with an invalid value for "not set". Parameters that are not in the
/// map do not change in a row.
struct Preset
{
    QString name; ///< not empty, unique in its place
    QString description;
    QVariantMap parameters;
};

using PresetList = QVector<Preset>;

/// The parts of a preset, which can be applied separately.
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
