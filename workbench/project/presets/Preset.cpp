#include "project/presets/Preset.h"

#include "project/unusedName.h"

#include <tagZOB_QUAD_RIM_Words.h>

#include <algorithm>
#include <iterator>

namespace workbench {

namespace {
using namespace vkd::plib::designparameter;

std::optional<PresetPart> partOf(Dimension dimension)
{
    switch (dimension) {
    case Direction:
    case Coordinate: return PresetPart::Directions;
    case Distance: return PresetPart::Cover;
    case BarDiameter: return PresetPart::Bars;
    case Reinforcement: return PresetPart::Limits;
    case CrackWidth:
    case SteelStress: return PresetPart::Cracks;
    case NoDimension: break;
    }
    return std::nullopt;
}
} // namespace

std::optional<PresetPart> partOf(const QString& parameter)
{
    if (parameter == QLatin1String("type"))
        return PresetPart::Type;
    for (const RecordWord& word : RecordWords)
        if (parameter == QLatin1String(word.name))
            return partOf(word.dimension);
    return std::nullopt;
}

QVariantMap ofParts(const QVariantMap& parameters, const QVector<PresetPart>& parts)
{
    QVariantMap chosen;
    for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter)
        if (const auto part = partOf(parameter.key()); part && parts.contains(*part))
            chosen.insert(parameter.key(), parameter.value());
    return chosen;
}

QVector<PresetPart> partsIn(const QVariantMap& parameters)
{
    QVector<PresetPart> parts;
    std::copy_if(std::begin(PresetParts), std::end(PresetParts), std::back_inserter(parts),
                 [&](PresetPart part) { return !ofParts(parameters, {part}).isEmpty(); });
    return parts;
}

const Preset* findPreset(const PresetList& presets, const QString& name)
{
    const auto found = std::find_if(presets.begin(), presets.end(),
                                    [&name](const Preset& preset) { return preset.name == name; });
    return found == presets.end() ? nullptr : &*found;
}

Preset* findPreset(PresetList& presets, const QString& name)
{
    const Preset* found = findPreset(qAsConst(presets), name);
    return found ? &presets[int(found - presets.constData())] : nullptr;
}

QString unusedName(const PresetList& presets, const QString& name)
{
    return unusedName(name, [&](const QString& tried) { return findPreset(presets, tried); });
}

} // namespace workbench
