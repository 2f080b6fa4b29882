#pragma once

#include "record/designFields.h"

#include <array>

namespace plib {

/// A minimum and a maximum reinforcement of the same layer.
struct LimitPair
{
    RealField minimum;
    RealField maximum;
};

/// The pairs in the order in which they are checked and reported.
constexpr std::array<LimitPair, 6> LimitPairs{{
    {&tagZOB_QUAD_RIM::aso, &tagZOB_QUAD_RIM::amo},
    {&tagZOB_QUAD_RIM::asu, &tagZOB_QUAD_RIM::amu},
    {&tagZOB_QUAD_RIM::asoq, &tagZOB_QUAD_RIM::amoq},
    {&tagZOB_QUAD_RIM::asuq, &tagZOB_QUAD_RIM::amuq},
    {&tagZOB_QUAD_RIM::asoi, &tagZOB_QUAD_RIM::amoi},
    {&tagZOB_QUAD_RIM::asui, &tagZOB_QUAD_RIM::amui},
}};

/// Compares in single precision, as in the record. A limit that is not set is in order with any
/// other limit. A NaN is never in order with a limit that is set.
bool isInOrder(float minimum, float maximum);

} // namespace plib
