#pragma once

#include "vkd_h_export.h"

#include <QString>

/// The text of a unit.
class VKD_H_EXPORT VKD_H_UnitLabel
{
public:
    /// The unit of a dimension code as it stands right behind a number: with a blank in front,
    /// unless the sign follows its number without one. Empty for a dimension without a unit. The
    /// second argument is part of the suite's interface; 0 is to be passed.
    static QString dimString(int code, int unused);
};
