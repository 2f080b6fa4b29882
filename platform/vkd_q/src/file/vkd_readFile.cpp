#include "vkd_readFile.h"

#include "vkd_zob.h"

#include <QFile>

VkdStatus vkd_readFile(const QString& path, QByteArray* bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return VkdStatus::failure(VKD_ZOB_NO_FILE, file.errorString());
    const QByteArray all = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return VkdStatus::failure(VKD_ZOB_FAILED, file.errorString());
    *bytes = all;
    return {};
}
