#include "record/designFields.h"

#include <algorithm>
#include <iterator>

namespace plib {

using namespace vkd::plib::designparameter;

int dimensionCode(RealField field)
{
    for (const RecordWord& word : RecordWords)
        if (word.real == field)
            return word.dimension;
    return NoDimension;
}

bool isSameKind(RealField a, RealField b)
{
    constexpr std::size_t Layers = 3;
    const auto placeIn = [](const SixFields& six, RealField field) {
        return std::size_t(std::find(six.begin(), six.end(), field) - six.begin());
    };
    for (const SixFields& six :
         {fields::Directions, fields::Distances, fields::Diameters, fields::Minimum,
          fields::Maximum, fields::CrackWidths, fields::Stresses}) {
        const std::size_t first = placeIn(six, a);
        const std::size_t second = placeIn(six, b);
        if (first == six.size() || second == six.size())
            continue;
        const bool isByLayer = six == fields::Directions || six == fields::Distances;
        return !isByLayer || first % Layers == second % Layers;
    }
    return false;
}

const std::vector<NamedField>& namedFields()
{
    static const std::vector<NamedField> all = [] {
        std::vector<NamedField> parameters;
        std::copy_if(std::begin(RecordWords), std::end(RecordWords), std::back_inserter(parameters),
                     [](const RecordWord& word) { return word.isParameter; });
        return parameters;
    }();
    return all;
}

std::optional<NamedField> fieldByName(const QString& name)
{
    for (const NamedField& field : namedFields())
        if (name == QLatin1String(field.name))
            return field;
    return std::nullopt;
}

} // namespace plib
