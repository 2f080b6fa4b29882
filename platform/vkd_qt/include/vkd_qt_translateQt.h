#pragma once

#include "vkd_qt_export.h"

/// Translates Qt's own texts, such as standard buttons, context menus of text fields and file
/// dialogs, into the desktop's language, and updates the translation whenever this language
/// changes. Has no effect if the host has already installed a translation of these texts. The
/// platform never calls this function, because the texts belong to the whole application. Call it
/// in the GUI thread, after the application object has been created.
VKD_QT_EXPORT void vkd_qt_translateQt();
