#pragma once

#include <QString>

namespace plib {

/// A text of the script in both keyword languages. They are in one place so that both are changed
/// together.
struct Words
{
    const char* german;
    const char* english;

    QString in(bool useEnglish) const { return QString::fromUtf8(useEnglish ? english : german); }
};

} // namespace plib
