#include "window/main/runWindow.h"

#include "window/support/WindowSettings.h"
#include "window/support/WindowStyle.h"

#include <VKD_QT_InitTranslator.h>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QIcon>
#include <QStyle>

namespace workbench {

int runWindow(const QString& path)
{
    const vkd::Language language = WindowSettings().language(vkd::desktopLanguage());
    if (language != vkd::desktopLanguage()) { // otherwise, the translations are already loaded
        vkd::setDesktopLanguage(language);
        VKD_QT_InitTranslator::languageChanged();
    }
    vkd_qt_translateQt();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.plib.workbench"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("plib_workbench")));
    QApplication::setStyle(new WindowStyle(QApplication::style()->objectName()));
    MainWindow window;
    window.openAfterPainting(path);
    window.show();
    return QApplication::exec();
}

} // namespace workbench
