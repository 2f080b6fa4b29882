#pragma once

#include "script/Keywords.h"

#include <QString>

namespace plib {

/// A text of the script in both keyword languages. They are in one place so that both are changed
/// together.
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
