#pragma once

#include <QString>

namespace plib {

/// A text of the script in both keyword languages, side by side so that none is changed alone.
struct Words
{
    const char* german;
    const char* english;

    QString in(bool useEnglish) const { return QString::fromUtf8(useEnglish ? english : german); }
};

} // namespace plib
