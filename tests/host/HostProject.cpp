#include "HostProject.h"

#include <vkd_dbo_model.h>
#include <vkd_zob.h>

namespace {
constexpr int Key1 = 200;
constexpr int Key2 = 6;

void require(bool condition, const char* what)
{
    if (!condition)
        qFatal("%s", what);
}
} // namespace

HostProject::HostProject(const QString& name)
{
    if (name.isEmpty())
        return;
    vkd::dbo::Model model;
    const VkdStatus read = vkd::dbo::readModelFile(QStringLiteral(MODELS "/%1.json").arg(name),
                                                   vkd::Language::English, &model);
    require(read.isOk(), qPrintable(read.reason));
    require(vkd::dbo::storeModel(m_project.handle(), model).isOk(), "model not stored");
}

std::vector<tagZOB_QUAD_RIM> HostProject::records()
{
    std::vector<tagZOB_QUAD_RIM> found;
    tagZOB_QUAD_RIM record{};
    int length = sizeof record;
    for (int position = 0;
         vkd_zob_get(m_project.index(), Key1, Key2, &record, &length, position) == VKD_ZOB_OK;
         ++position)
        found.push_back(record);
    vkd_zob_free_ex(m_project.index(), Key1, Key2);
    return found;
}

void HostProject::setRecords(const std::vector<tagZOB_QUAD_RIM>& records)
{
    const int none = 0;
    const int length = sizeof(tagZOB_QUAD_RIM);
    const int index = m_project.index();
    vkd_zob_lock_ex(index, Key1, Key2);
    vkd_zob_put(index, Key1, Key2, nullptr, &none, 0);
    for (const tagZOB_QUAD_RIM& record : records)
        vkd_zob_put(index, Key1, Key2, &record, &length, 1);
    vkd_zob_free_ex(index, Key1, Key2);
}
