#include "window/files/saveTextFile.h"

#include "window/support/WindowMessages.h"

#include <QSaveFile>

namespace workbench {

bool saveTextFile(const QString& path, const QString& text, WindowMessages* messages)
{
    QSaveFile file(path);
    const QByteArray bytes = text.toUtf8();
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isSaved)
        messages->complainOfWriting(path, file.errorString());
    return isSaved;
}

} // namespace workbench
