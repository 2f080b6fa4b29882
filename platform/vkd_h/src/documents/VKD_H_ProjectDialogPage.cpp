#include "VKD_H_ProjectDialogPage.h"

#include <vkd_zob.h>
#include <vkd_zob_keys.h>
#include <ZobTransaction.h>

namespace {
using vkd::zob::KeyPair;
using vkd::zob::keys::dialogPage;

QByteArray readRecord(ZobHandle project, int page, int position, cd_error_t* status)
{
    QByteArray bytes(1024, Qt::Uninitialized);
    int length = bytes.size();
    const KeyPair keys = dialogPage(page);
    while ((*status = vkd_zob_get(project.index(), keys.key1, keys.key2, bytes.data(), &length,
                                  position)) == VKD_ZOB_CUT) {
        bytes.resize(2 * bytes.size());
        length = bytes.size();
    }
    return *status == VKD_ZOB_OK ? bytes.left(length) : QByteArray();
}

bool append(ZobHandle project, int page, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const int length = bytes.size();
    const KeyPair keys = dialogPage(page);
    return vkd_zob_put(project.index(), keys.key1, keys.key2, bytes.constData(), &length, 1) ==
           VKD_ZOB_OK;
}
} // namespace

VKD_H_ProjectDialogPage::VKD_H_ProjectDialogPage(ZobHandle project, int page)
    : m_project(project)
    , m_page(page)
{
    if (project.isNull())
        return;
    cd_error_t status = VKD_ZOB_OK;
    for (int position = 0; status == VKD_ZOB_OK; position += 2) {
        const QByteArray key = readRecord(project, page, position, &status);
        if (status != VKD_ZOB_OK)
            break;
        const QByteArray value = readRecord(project, page, position + 1, &status);
        m_entries.insert(QString::fromUtf8(key), QString::fromUtf8(value));
    }
    if (status != VKD_ZOB_END && status != VKD_ZOB_NO_KEY)
        m_readStatus = VkdStatus::failure(status, vkd_zob_last_failure(project.index()).reason);
    vkd_zob_free_ex(project.index(), dialogPage(page).key1, dialogPage(page).key2);
}

QString VKD_H_ProjectDialogPage::getEntry(const QString& key, const QString& defaultValue) const
{
    return m_entries.value(key, defaultValue);
}

void VKD_H_ProjectDialogPage::setEntry(const QString& key, const QString& value)
{
    m_entries.insert(key, value);
}

void VKD_H_ProjectDialogPage::deleteEntry(const QString& key)
{
    m_entries.remove(key);
}

VkdStatus VKD_H_ProjectDialogPage::save() const
{
    if (!m_readStatus.isOk())
        return m_readStatus;
    ZobTransaction change(m_project);
    if (!change.status().isOk())
        return change.rollback();
    const int none = 0;
    const KeyPair keys = dialogPage(m_page);
    bool done =
        vkd_zob_put(m_project.index(), keys.key1, keys.key2, nullptr, &none, 0) == VKD_ZOB_OK;
    for (auto entry = m_entries.begin(); entry != m_entries.end(); ++entry)
        done = done && append(m_project, m_page, entry.key()) &&
               append(m_project, m_page, entry.value());
    return change.commit();
}
