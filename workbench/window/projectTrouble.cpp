#include "projectTrouble.h"

#include <QCoreApplication>
#include <QDir>

namespace workbench {

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("projectTrouble", source);
}

QString reason(cd_error_t status)
{
    switch (status) {
    case VKD_ZOB_NO_FILE:
        return text(QT_TRANSLATE_NOOP("projectTrouble", "It is not there or cannot be opened."));
    case VKD_ZOB_NO_PROJECT:
        return text(QT_TRANSLATE_NOOP("projectTrouble", "It is no project file."));
    case VKD_ZOB_NEWER:
        return text(QT_TRANSLATE_NOOP("projectTrouble",
                                      "It was written by a newer version of the programs."));
    case VKD_ZOB_DAMAGED: return text(QT_TRANSLATE_NOOP("projectTrouble", "It is damaged."));
    case VKD_ZOB_READ_ONLY:
        return text(QT_TRANSLATE_NOOP("projectTrouble", "It is write-protected."));
    case VKD_ZOB_FULL:
        return text(QT_TRANSLATE_NOOP("projectTrouble", "There is no room left on the disk."));
    case VKD_ZOB_LOCKED:
        return text(QT_TRANSLATE_NOOP("projectTrouble", "Another program is writing to it."));
    default: return text(QT_TRANSLATE_NOOP("projectTrouble", "The system cannot read it."));
    }
}
} // namespace

QString projectTrouble(const QString& path, cd_error_t status)
{
    return text(QT_TRANSLATE_NOOP("projectTrouble", "The file %1 cannot be opened.\n%2"))
        .arg(QDir::toNativeSeparators(path), reason(status));
}

} // namespace workbench
