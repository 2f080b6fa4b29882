#include "project/installedFile.h"

#include <vkd_lib_searchpath.h>

#include <QFile>

namespace workbench {

QString installedFile(const QString& name)
{
    constexpr int SearchMode = 3; // as in the library
    const auto path = vkd_lib_searchpath(QFile::encodeName(name).constData(), SearchMode);
    return path ? QFile::decodeName(path->c_str()) : QString();
}

} // namespace workbench
