#pragma once

#include "vkd_lib_value.h"

namespace vkd {

/// The desktop languages, with the values of setting 102.
enum class Language : int { German = 0, English = 1 };

/// Returns the desktop language.
inline Language desktopLanguage()
{
    return vkd_lib_getvalue(VKD_SETTING_LANGUAGE) == 0 ? Language::German : Language::English;
}

inline void setDesktopLanguage(Language language)
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, int(language));
}

} // namespace vkd
