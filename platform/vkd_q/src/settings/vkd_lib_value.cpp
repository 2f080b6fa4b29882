#include "vkd_lib_value.h"

#include <unordered_map>

namespace {
/// The map is never destroyed, because the store reads settings until the host's static objects
/// have been destroyed.
std::unordered_map<int, int>& settings()
{
    static std::unordered_map<int, int>& values = *new std::unordered_map<int, int>;
    return values;
}
} // namespace

int vkd_lib_getvalue(int key)
{
    const auto found = settings().find(key);
    return found == settings().end() ? 0 : found->second;
}

void vkd_lib_setvalue(int key, int value)
{
    settings()[key] = value;
}
