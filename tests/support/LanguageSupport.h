#pragma once

#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>

#include <QCoreApplication>

namespace testsupport {

constexpr int German = 0;
constexpr int English = 1;

/// Changes the desktop's language while the program is running. The widgets have processed the
/// change when the function returns.
inline void setLanguage(int language)
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    VKD_QT_InitTranslator::languageChanged();
    QCoreApplication::sendPostedEvents();
}

} // namespace testsupport
