#pragma once

#include "vkd_h_export.h"

#include <QString>

/// The unit text after a number.
class VKD_H_EXPORT VKD_H_UnitLabel
{
public:
    /// Returns the unit of a dimension code with a leading blank, except for units that follow
    /// their number directly. Empty for a dimension without a unit. The second argument belongs to
    /// the suite's interface and must be 0.
    static QString dimString(int code, int unused);
};
