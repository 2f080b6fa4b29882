#include "vkd_a_weldedFabric.h"

const std::array<VkdWeldedFabric, VkdWeldedFabrics>& vkd_a_weldedFabrics()
{
    static constexpr std::array<VkdWeldedFabric, VkdWeldedFabrics> fabrics{{
        {"Q188A", {6, 0.150, 1}, {6, 0.150, 1}},
        {"Q257A", {7, 0.150, 1}, {7, 0.150, 1}},
        {"Q335A", {8, 0.150, 1}, {8, 0.150, 1}},
        {"Q424A", {9, 0.150, 1}, {9, 0.150, 1}},
        {"Q524A", {10, 0.150, 1}, {10, 0.150, 1}},
        {"Q636A", {9, 0.100, 1}, {10, 0.125, 1}},
        {"R188A", {6, 0.150, 1}, {6, 0.250, 1}},
        {"R257A", {7, 0.150, 1}, {6, 0.250, 1}},
        {"R335A", {8, 0.150, 1}, {6, 0.250, 1}},
        {"R424A", {9, 0.150, 1}, {8, 0.250, 1}},
        {"R524A", {10, 0.150, 1}, {8, 0.250, 1}},
    }};
    return fabrics;
}
