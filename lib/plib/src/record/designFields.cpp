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
