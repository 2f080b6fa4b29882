#pragma once

#include "script/Keywords.h"

#include <QString>

namespace plib {

/// Part of a script in both keyword languages. Both versions are in one place, so that they are
/// changed together.
struct Words
{
    const char* german;
    const char* english;

    QString in(Keywords keywords) const
    {
        return QString::fromUtf8(keywords == Keywords::English ? english : german);
    }
};

} // namespace plib
