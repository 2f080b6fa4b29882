#include "window/files/projectFiles.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace workbench {

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

QString draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    const QString path = urls.size() == 1 ? urls.first().toLocalFile() : QString();
    return QFileInfo(path).isFile() ? path : QString();
}

bool isModelFile(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("json"), Qt::CaseInsensitive) == 0;
}

} // namespace workbench
