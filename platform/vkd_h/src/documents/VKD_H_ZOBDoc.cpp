#include "VKD_H_ZOBDoc.h"

#include <vkd_zob_keys.h>

#include <utility>

namespace {
using vkd::zob::ScratchIndex;
}

VKD_H_ZOBDoc::VKD_H_ZOBDoc(int index, const QString& path)
    : m_index(index)
    , m_path(path)
{
}

VKD_H_ZOBDoc::~VKD_H_ZOBDoc()
{
    close();
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::open(const QString& path, VkdStatus* status,
                                                 const VkdGoOn& goOn)
{
    int index = -1;
    const VkdStatus result = vkd_zob_open(path.toUtf8().constData(), &index, goOn);
    if (status)
        *status = result;
    return std::unique_ptr<VKD_H_ZOBDoc>(index > 0 ? new VKD_H_ZOBDoc(index, path) : nullptr);
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::create(const QString& path, VkdStatus* status)
{
    int index = -1;
    const VkdStatus result = vkd_zob_create(path.toUtf8().constData(), &index);
    if (status)
        *status = result;
    return std::unique_ptr<VKD_H_ZOBDoc>(index > 0 ? new VKD_H_ZOBDoc(index, path) : nullptr);
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::scratch()
{
    return std::unique_ptr<VKD_H_ZOBDoc>(new VKD_H_ZOBDoc(ScratchIndex, QString()));
}

int VKD_H_ZOBDoc::index() const
{
    return m_index;
}

QString VKD_H_ZOBDoc::path() const
{
    return m_path;
}

VkdStatus VKD_H_ZOBDoc::close()
{
    if (m_index < 0)
        return {};
    const int index = std::exchange(m_index, -1);
    return index == ScratchIndex ? VkdStatus() : vkd_zob_close(index); // the scratch store lives on
}
