#include "vkd_a_weldedFabric.h"

const std::array<VkdWeldedFabric, VkdWeldedFabrics>& vkd_a_weldedFabrics()
{
    static constexpr std::array<VkdWeldedFabric, VkdWeldedFabrics> fabrics{{
        {"Q188A", {6, 0.150}, {6, 0.150}},
        {"Q257A", {7, 0.150}, {7, 0.150}},
        {"Q335A", {8, 0.150}, {8, 0.150}},
        {"Q424A", {9, 0.150}, {9, 0.150}},
        {"Q524A", {10, 0.150}, {10, 0.150}},
        {"Q636A", {9, 0.100}, {10, 0.125}},
        {"R188A", {6, 0.150}, {6, 0.250}},
        {"R257A", {7, 0.150}, {6, 0.250}},
        {"R335A", {8, 0.150}, {6, 0.250}},
        {"R424A", {9, 0.150}, {8, 0.250}},
        {"R524A", {10, 0.150}, {8, 0.250}},
    }};
    return fabrics;
}
