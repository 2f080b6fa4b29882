#pragma once

#include "vkd_qt_export.h"

#include <QModelIndexList>

#include <functional>

/// Puts cells of one table on the clipboard, as text with tabs and as HTML. What is not among the
/// cells is empty within the rows and columns that they span. Without cells the clipboard stays as
/// it is.
VKD_QT_EXPORT void vkd_qt_copyCells(QModelIndexList cells,
                                    const std::function<QString(const QModelIndex&)>& textOf);
