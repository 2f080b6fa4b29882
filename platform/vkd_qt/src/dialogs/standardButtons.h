#pragma once

#include <QtGlobal>

class QAbstractButton;

namespace vkd::qt {

/// Translates the text of one of Qt's standard buttons into the desktop's language, unless the host
/// has translated it.
void translateStandardButton(QAbstractButton* button);

} // namespace vkd::qt
