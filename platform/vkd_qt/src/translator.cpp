#include "VKD_QT_InitTranslator.h"

namespace {
/// The texts of Qt's own widgets: standard buttons, menus of text fields, file dialogs.
const VKD_QT_InitTranslator QtTexts("qtbase");
} // namespace
