#pragma once

#include <QIcon>

/// The pictures of the output tree. They are drawn, so that they are sharp on every screen. Each
/// call makes an icon anew; copies share it, so items take copies of one.
namespace plib {

QIcon plotIcon();
/// The letters LC, or LF in German.
QIcon rowIcon(bool english);
QIcon closeIcon();

} // namespace plib
