#pragma once

#include <QIcon>

/// The pictures of the output tree. Each call builds an icon; copies share it, so items take copies
/// of one.
namespace plib {

QIcon plotIcon();
/// The letters LC, or LF in German.
QIcon rowIcon(bool english);
QIcon closeIcon();

} // namespace plib
