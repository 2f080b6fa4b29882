#pragma once

#include "vkd_qt_export.h"

#include <QModelIndexList>

#include <functional>

/// Copies cells of one table to the clipboard as tab-separated text and as HTML. Cells within the
/// copied rows and columns that are not in `cells` are left empty. If `cells` is empty, the
/// clipboard does not change.
VKD_QT_EXPORT void vkd_qt_copyCells(QModelIndexList cells,
                                    const std::function<QString(const QModelIndex&)>& textOf);
