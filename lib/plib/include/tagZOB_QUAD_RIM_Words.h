#pragma once

#include "tagZOB_QUAD_RIM.h"

namespace vkd {
namespace plib {
namespace designparameter {

using Record = tagZOB_QUAD_RIM;

/// The dimension codes of the real fields, as defined in vkd_h_units.h. Records contain values in
/// base units.
enum Dimension {
    NoDimension = -1,
    Direction = 5,
    Coordinate = 1001,
    Reinforcement = 1021,
    BarDiameter = 1023,
    Distance = 1024,
    CrackWidth = 1026,
    SteelStress = 1092
};

/// A word of four bytes in a tagZOB_QUAD_RIM: an integer or a real field.
struct RecordWord
{
    const char* name;
    std::int32_t Record::*integer; ///< null for a real field
    float Record::*real;           ///< null for an integer field
    Dimension dimension;
    bool isParameter; ///< false for keys of the record and reserved words

    constexpr RecordWord(const char* word, std::int32_t Record::*field, bool parameter)
        : name(word)
        , integer(field)
        , real(nullptr)
        , dimension(NoDimension)
        , isParameter(parameter)
    {
    }
    constexpr RecordWord(const char* word, float Record::*field, Dimension unit)
        : name(word)
        , integer(nullptr)
        , real(field)
        , dimension(unit)
        , isParameter(unit != NoDimension)
    {
    }
};

/// All words in the order of the record, for hosts that show or edit records by field name.
constexpr RecordWord RecordWords[] = {
    {"group", &Record::group, false},
    {"subId", &Record::subId, false},
    {"type", &Record::type, true},
    {"mode", &Record::mode, true},
    {"mark", &Record::mark, true},
    {"rio", &Record::rio, Direction},
    {"rioq", &Record::rioq, Direction},
    {"rioi", &Record::rioi, Direction},
    {"riu", &Record::riu, Direction},
    {"riuq", &Record::riuq, Direction},
    {"riui", &Record::riui, Direction},
    {"xref", &Record::xref, Coordinate},
    {"yref", &Record::yref, Coordinate},
    {"zref", &Record::zref, Coordinate},
    {"hio", &Record::hio, Distance},
    {"hioq", &Record::hioq, Distance},
    {"hioi", &Record::hioi, Distance},
    {"hiu", &Record::hiu, Distance},
    {"hiuq", &Record::hiuq, Distance},
    {"hiui", &Record::hiui, Distance},
    {"dio", &Record::dio, BarDiameter},
    {"dioq", &Record::dioq, BarDiameter},
    {"dioi", &Record::dioi, BarDiameter},
    {"diu", &Record::diu, BarDiameter},
    {"diuq", &Record::diuq, BarDiameter},
    {"diui", &Record::diui, BarDiameter},
    {"reservedD", &Record::reservedD, NoDimension},
    {"aso", &Record::aso, Reinforcement},
    {"asoq", &Record::asoq, Reinforcement},
    {"asoi", &Record::asoi, Reinforcement},
    {"asu", &Record::asu, Reinforcement},
    {"asuq", &Record::asuq, Reinforcement},
    {"asui", &Record::asui, Reinforcement},
    {"reservedS", &Record::reservedS, NoDimension},
    {"amo", &Record::amo, Reinforcement},
    {"amoq", &Record::amoq, Reinforcement},
    {"amoi", &Record::amoi, Reinforcement},
    {"amu", &Record::amu, Reinforcement},
    {"amuq", &Record::amuq, Reinforcement},
    {"amui", &Record::amui, Reinforcement},
    {"reservedM", &Record::reservedM, NoDimension},
    {"wko", &Record::wko, CrackWidth},
    {"wkoq", &Record::wkoq, CrackWidth},
    {"wkoi", &Record::wkoi, CrackWidth},
    {"wku", &Record::wku, CrackWidth},
    {"wkuq", &Record::wkuq, CrackWidth},
    {"wkui", &Record::wkui, CrackWidth},
    {"sigo", &Record::sigo, SteelStress},
    {"sigoq", &Record::sigoq, SteelStress},
    {"sigoi", &Record::sigoi, SteelStress},
    {"sigu", &Record::sigu, SteelStress},
    {"siguq", &Record::siguq, SteelStress},
    {"sigui", &Record::sigui, SteelStress},
};

static_assert(4 * sizeof RecordWords / sizeof *RecordWords == sizeof(Record));

} // namespace designparameter
} // namespace plib
} // namespace vkd
