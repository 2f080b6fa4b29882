#include "vkd_qt_translateQt.h"

#include "VKD_QT_InitTranslator.h"

#include <QCoreApplication>

void vkd_qt_translateQt()
{
    const char* const cancel = "Cancel";
    if (QCoreApplication::translate("QPlatformTheme", cancel) == QLatin1String(cancel))
        static const VKD_QT_InitTranslator texts("qtbase");
}
