#include "window/main/runWindow.h"

#include "window/support/WindowSettings.h"

#include <VKD_QT_InitTranslator.h>
#include <VKD_QT_OutlineStyle.h>
#include <vkd_qt_translateQt.h>

#include <QApplication>
#include <QIcon>
#include <QStyle>

namespace workbench {

int runWindow(const QString& path)
{
    vkd::setDesktopLanguage(WindowSettings().language(vkd::desktopLanguage()));
    VKD_QT_InitTranslator::languageChanged();
    vkd_qt_translateQt();
    QGuiApplication::setDesktopFileName(QStringLiteral("org.plib.workbench"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("plib_workbench")));
    QApplication::setStyle(new VKD_QT_OutlineStyle(QApplication::style()->objectName()));
    MainWindow window;
    window.openAfterPainting(path);
    window.show();
    return QApplication::exec();
}

} // namespace workbench
