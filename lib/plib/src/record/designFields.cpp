#include "record/designFields.h"

#include <algorithm>

namespace plib {

namespace {
using R = tagZOB_QUAD_RIM;

template <typename Fields>
bool contains(const Fields& fields, RealField field)
{
    return std::find(fields.begin(), fields.end(), field) != fields.end();
}
} // namespace

int dimensionCode(RealField field)
{
    if (contains(fields::Directions, field))
        return 5;
    if (contains(fields::Reference, field))
        return 1001;
    if (contains(fields::Distances, field))
        return 1024;
    if (contains(fields::Diameters, field))
        return 1023;
    if (contains(fields::Minimum, field) || contains(fields::Maximum, field))
        return 1021;
    if (contains(fields::CrackWidths, field))
        return 1026;
    return contains(fields::Stresses, field) ? 1092 : -1;
}

const std::vector<NamedField>& namedFields()
{
    static const std::vector<NamedField> all{
        {"type", nullptr, &R::type}, {"mode", nullptr, &R::mode},   {"mark", nullptr, &R::mark},
        {"rio", &R::rio, nullptr},   {"rioq", &R::rioq, nullptr},   {"rioi", &R::rioi, nullptr},
        {"riu", &R::riu, nullptr},   {"riuq", &R::riuq, nullptr},   {"riui", &R::riui, nullptr},
        {"xref", &R::xref, nullptr}, {"yref", &R::yref, nullptr},   {"zref", &R::zref, nullptr},
        {"hio", &R::hio, nullptr},   {"hioq", &R::hioq, nullptr},   {"hioi", &R::hioi, nullptr},
        {"hiu", &R::hiu, nullptr},   {"hiuq", &R::hiuq, nullptr},   {"hiui", &R::hiui, nullptr},
        {"dio", &R::dio, nullptr},   {"dioq", &R::dioq, nullptr},   {"dioi", &R::dioi, nullptr},
        {"diu", &R::diu, nullptr},   {"diuq", &R::diuq, nullptr},   {"diui", &R::diui, nullptr},
        {"aso", &R::aso, nullptr},   {"asoq", &R::asoq, nullptr},   {"asoi", &R::asoi, nullptr},
        {"asu", &R::asu, nullptr},   {"asuq", &R::asuq, nullptr},   {"asui", &R::asui, nullptr},
        {"amo", &R::amo, nullptr},   {"amoq", &R::amoq, nullptr},   {"amoi", &R::amoi, nullptr},
        {"amu", &R::amu, nullptr},   {"amuq", &R::amuq, nullptr},   {"amui", &R::amui, nullptr},
        {"wko", &R::wko, nullptr},   {"wkoq", &R::wkoq, nullptr},   {"wkoi", &R::wkoi, nullptr},
        {"wku", &R::wku, nullptr},   {"wkuq", &R::wkuq, nullptr},   {"wkui", &R::wkui, nullptr},
        {"sigo", &R::sigo, nullptr}, {"sigoq", &R::sigoq, nullptr}, {"sigoi", &R::sigoi, nullptr},
        {"sigu", &R::sigu, nullptr}, {"siguq", &R::siguq, nullptr}, {"sigui", &R::sigui, nullptr},
    };
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
