#include "project/SeenPart.h"

#include "project/dialogPages.h"

#include <vkd_zob_keys.h>
#include <ZobTransaction.h>

#include <QCryptographicHash>

#include <vector>

namespace workbench {

namespace {
using vkd::zob::KeyPair;
namespace keys = vkd::zob::keys;

std::vector<KeyPair> keysOf(ProjectPart part)
{
    switch (part) {
    case ProjectPart::Design: return {keys::Design, keys::dialogPage(DesignDialogPage)};
    case ProjectPart::Output: return {keys::dialogPage(OutputDialogPage)};
    case ProjectPart::TextOutput: return {keys::dialogPage(TextOutputDialogPage)};
    }
    return {};
}

/// Adds the records of a sequence to the hash, each with its length, followed by an end marker.
cd_error_t addRecords(ZobHandle project, KeyPair pair, QCryptographicHash& hash)
{
    QByteArray record(1024, Qt::Uninitialized);
    cd_error_t status = VKD_ZOB_OK;
    for (int position = 0; status == VKD_ZOB_OK;) {
        int length = record.size();
        status =
            vkd_zob_get(project.index(), pair.key1, pair.key2, record.data(), &length, position);
        if (status == VKD_ZOB_CUT) {
            record.resize(2 * record.size());
            status = VKD_ZOB_OK;
        } else if (status == VKD_ZOB_OK) {
            hash.addData(QByteArray::number(length) + ' ');
            hash.addData(QByteArray::fromRawData(record.constData(), length));
            ++position;
        }
    }
    vkd_zob_free_ex(project.index(), pair.key1, pair.key2);
    hash.addData(QByteArrayLiteral("end"));
    const bool isWhole = status == VKD_ZOB_END || status == VKD_ZOB_NO_KEY;
    return isWhole ? cd_error_t(VKD_ZOB_OK) : status;
}

cd_error_t readDigest(ZobHandle project, ProjectPart part, QByteArray* digest)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const KeyPair pair : keysOf(part))
        if (const cd_error_t status = addRecords(project, pair, hash); status != VKD_ZOB_OK)
            return status;
    *digest = hash.result();
    return VKD_ZOB_OK;
}
} // namespace

SeenPart::SeenPart(ProjectPart part)
    : m_part(part)
{
}

cd_error_t SeenPart::look(ZobHandle project)
{
    return readDigest(project, m_part, &m_digest);
}

bool SeenPart::isOutdated(ZobHandle project) const
{
    QByteArray present;
    return readDigest(project, m_part, &present) == VKD_ZOB_OK && present != m_digest;
}

cd_error_t SeenPart::store(ZobHandle project, const std::function<cd_error_t()>& put, Newer newer)
{
    ZobTransaction change(project);
    if (!change.status().isOk())
        return change.status().code;
    QByteArray present;
    cd_error_t status = readDigest(project, m_part, &present);
    if (status != VKD_ZOB_OK)
        return status;
    if (newer == Newer::Keep && present != m_digest)
        return PartChanged;
    status = put();
    if (status == VKD_ZOB_OK)
        status = readDigest(project, m_part, &present);
    if (status != VKD_ZOB_OK)
        return status; // the transaction is rolled back
    status = change.commit().code;
    if (status == VKD_ZOB_OK)
        m_digest = present;
    return status;
}

} // namespace workbench
