#pragma once

#include <QString>

class QMimeData;

namespace workbench {

/// Returns whether both paths refer to the same existing file.
bool isSameFile(const QString& a, const QString& b);

/// Returns the path of the dragged local file, or an empty string unless exactly one file is
/// dragged. Folders do not count as files.
QString draggedFile(const QMimeData* data);

/// Returns whether the file has the suffix of a model file. The content is checked when the file is
/// read.
bool isModelFile(const QString& path);

} // namespace workbench
