#pragma once

#include "vkd_h_export.h"

#include <QString>

/// Provides the unit text that follows a number.
class VKD_H_EXPORT VKD_H_UnitLabel
{
public:
    /// Returns the unit of a dimension code with a leading space, except for units that directly
    /// follow the number. Returns an empty string for a dimension without a unit. The second
    /// argument belongs to the suite's interface and must be 0.
    static QString dimString(int code, int unused);
};
