#include "window/files/storeErrorText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace workbench {

namespace {
QString reason(const char* source)
{
    return QCoreApplication::translate("storeErrorText", source);
}

/// Returns the reason why no file can be opened at this path.
QString placeReason(const QFileInfo& file)
{
    if (file.isDir())
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "It is a folder."));
    if (!file.absoluteDir().exists())
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "Its folder does not exist."));
    if (!file.exists())
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "It does not exist."));
    return reason(QT_TRANSLATE_NOOP("storeErrorText", "You do not have permission to read it."));
}
} // namespace

QString storeErrorText(const QString& path, cd_error_t status)
{
    switch (status) {
    case VKD_ZOB_NO_FILE: return placeReason(QFileInfo(path));
    case VKD_ZOB_NO_PROJECT:
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "It is not a project file."));
    case VKD_ZOB_NEWER:
        return reason(QT_TRANSLATE_NOOP("storeErrorText",
                                        "It was written by a newer version of the programs."));
    case VKD_ZOB_DAMAGED: return reason(QT_TRANSLATE_NOOP("storeErrorText", "It is damaged."));
    case VKD_ZOB_READ_ONLY:
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "It or its folder is write-protected."));
    case VKD_ZOB_FULL:
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "There is no space left on the disk."));
    case VKD_ZOB_LOCKED:
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "Another program is writing to it."));
    case VKD_ZOB_MOVED:
        return QFileInfo::exists(path)
                   ? reason(QT_TRANSLATE_NOOP("storeErrorText",
                                              "It was replaced by another file while it was open."))
                   : reason(QT_TRANSLATE_NOOP("storeErrorText",
                                              "It was deleted or moved while it was open."));
    default:
        return reason(QT_TRANSLATE_NOOP("storeErrorText", "The system cannot read or write it."));
    }
}

} // namespace workbench
