#pragma once

#include <QString>

class QMimeData;

namespace workbench {

/// Whether both paths lead to one file that is there.
bool isSameFile(const QString& a, const QString& b);

/// The local file that is dragged, if it is one alone and no folder.
QString draggedFile(const QMimeData* data);

/// By its name; whether it holds a model is known when it is read.
bool isModelFile(const QString& path);

} // namespace workbench
