#include "StructLineEdit.h"

namespace {
bool isNeverNegative(int code)
{
    constexpr int Codes[] = {1021, 1023, 1024, 1026, 1092};
    for (int known : Codes)
        if (known == code)
            return true;
    return false;
}
} // namespace

StructLineEdit vkd_h_defaultStructLineEdit(int code)
{
    StructLineEdit description;
    description.dimension = code;
    if (isNeverNegative(code))
        description.minimum = 0.0;
    return description;
}
