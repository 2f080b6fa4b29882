#pragma once

#include <vkd_dbo_model.h>

/// Returns a small model with enough content of each kind to offer about a hundred plots.
inline vkd::dbo::Model plotModel()
{
    vkd::dbo::Model model;
    model.nodes = {{1, {0, 0, 0}}, {2, {1, 0, 0}}, {3, {1, 1, 0}}};
    model.groups = {{1, QStringLiteral("slab")}};
    vkd::dbo::Quad quad;
    quad.number = quad.group = 1;
    for (int corner = 0; corner < 3; ++corner)
        quad.nodes[corner] = corner + 1;
    model.quads = {quad};
    vkd::dbo::LineElement beam;
    beam.number = beam.group = beam.nodes[0] = 1;
    beam.nodes[1] = 2;
    model.beams = {beam};
    return model;
}
