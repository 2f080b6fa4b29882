#pragma once

#include <vkd_language.h>

#include <QIcon>

/// The icons of the output tree. Each call creates a new icon, whereas copies of an icon share
/// their data. Therefore, create one icon and copy it for all items.
namespace plib {

QIcon plotIcon();
/// Returns an icon with the letters LC, or LF in German.
QIcon rowIcon(vkd::Language language);
QIcon closeIcon();

} // namespace plib
