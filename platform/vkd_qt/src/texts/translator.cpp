#include "VKD_QT_InitTranslator.h"

#include <QGuiApplication>

/// Installs the translations of Qt's own widgets: standard buttons, context menus of text fields
/// and file dialogs. A program without a GUI that only loads this library keeps its own language.
static void translateWidgets()
{
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        static const VKD_QT_InitTranslator texts("qtbase");
}
Q_COREAPP_STARTUP_FUNCTION(translateWidgets)
