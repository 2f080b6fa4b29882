#include "VKD_H_ZOBDoc.h"

namespace {
constexpr int ScratchIndex = 0;
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

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::open(const QString& path, cd_error_t* status,
                                                 const VkdGoOn& goOn)
{
    int index = -1;
    const cd_error_t result = vkd_zob_open(path.toUtf8().constData(), &index, goOn);
    if (status)
        *status = result;
    return std::unique_ptr<VKD_H_ZOBDoc>(index > 0 ? new VKD_H_ZOBDoc(index, path) : nullptr);
}

std::unique_ptr<VKD_H_ZOBDoc> VKD_H_ZOBDoc::create(const QString& path, cd_error_t* status)
{
    int index = -1;
    const cd_error_t result = vkd_zob_create(path.toUtf8().constData(), &index);
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

cd_error_t VKD_H_ZOBDoc::close()
{
    if (m_index < 0)
        return VKD_ZOB_OK;
    const bool livesOn = m_index == ScratchIndex;
    const cd_error_t status = livesOn ? cd_error_t(VKD_ZOB_OK) : vkd_zob_close(m_index);
    m_index = -1;
    return status;
}
