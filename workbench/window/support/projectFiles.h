#pragma once

#include <QString>

class QMimeData;

namespace workbench {

/// Returns whether both paths lead to the same existing file.
bool isSameFile(const QString& a, const QString& b);

/// Returns the dragged local file, if it is a single one and not a folder.
QString draggedFile(const QMimeData* data);

/// Returns whether the file has the suffix of a model file. Its content is checked on reading.
bool isModelFile(const QString& path);

} // namespace workbench
