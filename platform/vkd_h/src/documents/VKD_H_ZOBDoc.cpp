#include "VKD_H_ZOBDoc.h"

#include <utility>

VKD_H_ZOBDoc::VKD_H_ZOBDoc(ZobHandle project, const QString& path)
    : m_project(project)
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
    return std::unique_ptr<VKD_H_ZOBDoc>(index > 0 ? new VKD_H_ZOBDoc(ZobHandle(index), path)
                                                   : nullptr);
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::create(const QString& path, VkdStatus* status)
{
    int index = -1;
    const VkdStatus result = vkd_zob_create(path.toUtf8().constData(), &index);
    if (status)
        *status = result;
    return std::unique_ptr<VKD_H_ZOBDoc>(index > 0 ? new VKD_H_ZOBDoc(ZobHandle(index), path)
                                                   : nullptr);
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::scratch()
{
    return std::unique_ptr<VKD_H_ZOBDoc>(new VKD_H_ZOBDoc(ZobHandle::scratch(), QString()));
}

int VKD_H_ZOBDoc::index() const
{
    return m_project.index();
}

QString VKD_H_ZOBDoc::path() const
{
    return m_path;
}

VkdStatus VKD_H_ZOBDoc::close()
{
    if (m_project.isNull())
        return {};
    const int index = std::exchange(m_project, ZobHandle()).index();
    const bool isScratch = index == ZobHandle::scratch().index(); // the scratch store stays open
    return isScratch ? VkdStatus() : vkd_zob_close(index);
}
