#pragma once

#include <cstddef>
#include <cstdint>

/// The design parameters of the area elements of one group. The project stores them in this layout
/// for the design program: 53 words of four bytes, stored in little-endian order. In every real
/// field, -99999.0 means "not set".
///
/// In the field names, `o` denotes the upper side and `u` the lower side. The suffix denotes the
/// layer: no suffix for the principal reinforcement, `q` for the cross reinforcement, `i` for the
/// third layer.
struct tagZOB_QUAD_RIM
{
    std::int32_t group; ///< -1: all groups without a record; 1000000 or more: secondary group
    std::int32_t subId; ///< not 0: record of another program
    std::int32_t
        type; ///< 0 none, 1 two orthogonal layers, 2 two layers, 3 three layers, 4 circular
    std::int32_t mode;                      ///< preserved, not used
    std::int32_t mark;                      ///< not 0 or 11: record of another program
    float rio, rioq, rioi, riu, riuq, riui; ///< directions, radians
    float xref, yref, zref;                 ///< reference point of circular reinforcement, metres
    /// Distances in metres. The stored form contains the distance of each layer from the surface.
    /// The edited form contains the distance of the first layer from the surface, the spacing
    /// between the first and second layers, and the spacing between the second and third layers.
    float hio, hioq, hioi, hiu, hiuq, hiui;
    float dio, dioq, dioi, diu, diuq, diui; ///< bar diameters, mm
    float reservedD;
    float aso, asoq, asoi, asu, asuq, asui; ///< minimum reinforcement, cm²/m
    float reservedS;
    float amo, amoq, amoi, amu, amuq, amui; ///< maximum reinforcement, cm²/m
    float reservedM;
    float wko, wkoq, wkoi, wku, wkuq, wkui;       ///< permissible crack widths, mm
    float sigo, sigoq, sigoi, sigu, siguq, sigui; ///< permissible steel stresses, N/mm²
};

static_assert(sizeof(tagZOB_QUAD_RIM) == 212 && alignof(tagZOB_QUAD_RIM) == 4);
static_assert(offsetof(tagZOB_QUAD_RIM, rio) == 20 && offsetof(tagZOB_QUAD_RIM, xref) == 44);
static_assert(offsetof(tagZOB_QUAD_RIM, hio) == 56 && offsetof(tagZOB_QUAD_RIM, dio) == 80);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedD) == 104 && offsetof(tagZOB_QUAD_RIM, aso) == 108);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedS) == 132 && offsetof(tagZOB_QUAD_RIM, amo) == 136);
static_assert(offsetof(tagZOB_QUAD_RIM, reservedM) == 160 && offsetof(tagZOB_QUAD_RIM, wko) == 164);
static_assert(offsetof(tagZOB_QUAD_RIM, sigo) == 188 && offsetof(tagZOB_QUAD_RIM, sigui) == 208);
