#include "window/main/runWindow.h"

#include "window/support/WindowSettings.h"

#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>

#include <QApplication>

namespace workbench {

int runWindow(const QString& path)
{
    const int language = WindowSettings().language(vkd_lib_getvalue(VKD_SETTING_LANGUAGE));
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    VKD_QT_InitTranslator::languageChanged();
    MainWindow window;
    window.openAfterPainting(path);
    window.show();
    return QApplication::exec();
}

} // namespace workbench
