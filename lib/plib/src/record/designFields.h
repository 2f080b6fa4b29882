#pragma once

#include <tagZOB_QUAD_RIM_Words.h>

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace plib {

using RealField = float tagZOB_QUAD_RIM::*;

/// The six fields of one kind, in the order of the record: principal, cross and third layer of the
/// upper side, followed by the same layers of the lower side.
using SixFields = std::array<RealField, 6>;
constexpr int LayersOfASide = 3;

/// Tables of the real fields by kind. The code for records, entries, row texts and dialogs iterates
/// over these tables.
namespace fields {
using R = tagZOB_QUAD_RIM;
constexpr SixFields Directions{&R::rio, &R::rioq, &R::rioi, &R::riu, &R::riuq, &R::riui};
constexpr std::array<RealField, 3> Reference{&R::xref, &R::yref, &R::zref};
constexpr SixFields Distances{&R::hio, &R::hioq, &R::hioi, &R::hiu, &R::hiuq, &R::hiui};
constexpr SixFields Diameters{&R::dio, &R::dioq, &R::dioi, &R::diu, &R::diuq, &R::diui};
constexpr SixFields Minimum{&R::aso, &R::asoq, &R::asoi, &R::asu, &R::asuq, &R::asui};
constexpr SixFields Maximum{&R::amo, &R::amoq, &R::amoi, &R::amu, &R::amuq, &R::amui};
constexpr SixFields CrackWidths{&R::wko, &R::wkoq, &R::wkoi, &R::wku, &R::wkuq, &R::wkui};
constexpr SixFields Stresses{&R::sigo, &R::sigoq, &R::sigoi, &R::sigu, &R::siguq, &R::sigui};
} // namespace fields

/// Returns the dimension code of a real field, or -1 for a reserved field.
int dimensionCode(RealField field);

/// Returns whether two fields are of the same kind and therefore usually have the same value. For
/// directions and distances, the layer must also be the same.
bool isSameKind(RealField a, RealField b);

using NamedField = vkd::plib::designparameter::RecordWord;

/// Returns the fields that are parameters, in the order of the record. Does not include `group`,
/// `subId` and the reserved words.
const std::vector<NamedField>& namedFields();

/// Returns the parameter with this name, or nothing if there is none.
std::optional<NamedField> fieldByName(const QString& name);

} // namespace plib
