#include "VKD_QT_InitTranslator.h"

#include <QGuiApplication>

/// The texts of Qt's own widgets: standard buttons, menus of text fields, file dialogs. A program
/// without a screen that merely loads this library keeps the language it speaks.
static void translateWidgets()
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        static const VKD_QT_InitTranslator texts("qtbase");
}
Q_COREAPP_STARTUP_FUNCTION(translateWidgets)
