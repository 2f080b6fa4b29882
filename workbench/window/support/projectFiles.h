#pragma once

#include <QString>

class QMimeData;

namespace workbench {

/// Returns whether both paths refer to the same existing file.
bool isSameFile(const QString& a, const QString& b);

/// Returns the path of the dragged local file if a single file and not a folder is dragged.
QString draggedFile(const QMimeData* data);

/// Returns whether the file has the suffix of a model file. Its content is checked on reading.
bool isModelFile(const QString& path);

} // namespace workbench
