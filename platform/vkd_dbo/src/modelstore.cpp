#include "JsonPlace.h"
#include "recordlist.h"
#include "vkd_dbo_queries.h"

#include <vkd_zob.h>
#include <ZobSnapshot.h>
#include <ZobTransaction.h>

#include <QLoggingCategory>
#include <QUuid>

namespace vkd {
namespace dbo {

namespace {
Q_LOGGING_CATEGORY(lcModel, "vkd.dbo")

constexpr int FirstGuess = 1024; // bytes; longer records are rare

template <typename T>
QVector<QByteArray> toRecords(const QVector<T>& things)
{
    QVector<QByteArray> records(things.size());
    for (int i = 0; i < things.size(); ++i) {
        FieldWriter writer(&records[i]);
        T copy = things[i]; // not const, because fields() is also used for reading
        fields(writer, copy);
    }
    return records;
}

/// Returns the status after reading a list; `last` is the result of the last read. VKD_ZOB_OK means
/// that the caller stopped before the end of the list.
VkdStatus statusOfEnd(ZobHandle project, cd_error_t last)
{
    if (last == VKD_ZOB_END || last == VKD_ZOB_NO_KEY)
        return {};
    if (last == VKD_ZOB_OK)
        return VkdStatus::failure(VKD_ZOB_CANCELLED, ModelFileError::tr("it was cancelled"));
    return VkdStatus::failure(last, vkd_zob_last_failure(project.index()).reason);
}

/// Returns the record of the system information. Random bytes after the fields identify the model
/// (see modelMark()).
QByteArray newSystemRecord(const SystemInformation& system)
{
    return toRecords(QVector<SystemInformation>{system}).first() + QUuid::createUuid().toRfc4122();
}

/// Decodes the system information from the mark of a model, which is the record of the system
/// information (see modelMark()).
SystemInformation systemOf(ZobHandle project, const QByteArray& mark, VkdStatus* status)
{
    QVector<SystemInformation> systems;
    if (!mark.isEmpty())
        *status = addThing(project, keys::System, mark, systems);
    return systems.isEmpty() ? SystemInformation() : systems.first();
}

/// Reads the mark of the model (see modelMark()).
VkdStatus readMark(ZobHandle project, QByteArray* mark)
{
    return forEachRecord(project, keys::System, [mark](const QByteArray& bytes) { *mark = bytes; });
}
} // namespace

bool putRecords(ZobHandle project, KeyPair pair, const QVector<QByteArray>& records,
                VkdSteps* steps)
{
    const int none = 0;
    bool done = vkd_zob_put(project.index(), pair.key1, pair.key2, nullptr, &none, 0) == VKD_ZOB_OK;
    for (const QByteArray& record : records) {
        const int length = record.size();
        done = done && (!steps || steps->next()) &&
               vkd_zob_put(project.index(), pair.key1, pair.key2, record.constData(), &length, 1) ==
                   VKD_ZOB_OK;
    }
    return done;
}

cd_error_t getRecord(ZobHandle project, KeyPair pair, int position, QByteArray* record)
{
    for (int size = FirstGuess;; size *= 2) {
        record->resize(size);
        int length = size;
        const cd_error_t status =
            vkd_zob_get(project.index(), pair.key1, pair.key2, record->data(), &length, position);
        if (status == VKD_ZOB_CUT)
            continue;
        record->resize(status == VKD_ZOB_OK ? length : 0);
        return status;
    }
}

VkdStatus forEachRecord(ZobHandle project, KeyPair pair,
                        const std::function<void(const QByteArray&)>& visit, VkdSteps* steps)
{
    QByteArray record;
    record.reserve(FirstGuess);
    cd_error_t status = VKD_ZOB_OK;
    for (int position = 0; status == VKD_ZOB_OK && (!steps || steps->next()); ++position) {
        status = getRecord(project, pair, position, &record);
        if (status == VKD_ZOB_OK)
            visit(record);
    }
    const VkdStatus end = statusOfEnd(project, status);
    vkd_zob_free_ex(project.index(), pair.key1, pair.key2);
    return end;
}

VkdStatus reportDamagedRecord(ZobHandle project, KeyPair pair)
{
    qCWarning(lcModel, "database %d: a record with the keys %d, %d is too short and is skipped",
              project.index(), pair.key1, pair.key2);
    return VkdStatus::failure(
        VKD_ZOB_DAMAGED,
        ModelFileError::tr("a record with the keys %1, %2 is too short and is skipped")
            .arg(pair.key1)
            .arg(pair.key2));
}

VkdStatus storeModel(ZobHandle project, const Model& model, const VkdGoOn& goOn)
{
    int total = 0;
    forEachList(model, [&total](KeyPair, const auto& things) { total += things.size(); });
    VkdSteps steps(goOn, total);
    ZobTransaction change(project);
    bool done = change.status().isOk() &&
                putRecords(project, keys::System, {newSystemRecord(model.system)});
    forEachList(model, [&](KeyPair pair, const auto& things) {
        done = done && putRecords(project, pair, toRecords(things), &steps);
    });
    return done ? change.commit() : change.rollback();
}

VkdStatus copySystem(ZobHandle from, ZobHandle to)
{
    QByteArray mark;
    VkdStatus status = readMark(from, &mark);
    const SystemInformation system = systemOf(from, mark, &status);
    if (!mayContinue(status))
        return status;
    ZobTransaction change(to);
    const bool done =
        change.status().isOk() && putRecords(to, keys::System, {newSystemRecord(system)});
    return done ? change.commit() : change.rollback();
}

QByteArray modelMark(ZobHandle project)
{
    QByteArray mark;
    readMark(project, &mark);
    return mark;
}

Model readModel(ZobHandle project, const VkdGoOn& goOn, QByteArray* mark, VkdStatus* status)
{
    VkdSteps steps(goOn);
    Model model;
    const ZobSnapshot snapshot(project);
    VkdStatus first = snapshot.status();
    QByteArray system;
    if (first.isOk())
        first = readMark(project, &system);
    model.system = systemOf(project, system, &first);
    const bool hasModel = !system.isEmpty();
    // After a failure of the store, every further list would also fail, each only after the lock
    // timeout.
    forEachList(model, [&](KeyPair pair, auto& things) {
        const VkdStatus read =
            hasModel && mayContinue(first) ? readList(project, pair, things, &steps) : first;
        if (first.isOk() || !mayContinue(read))
            first = read;
    });
    if (mark)
        *mark = first.isOk() ? system : QByteArray();
    if (status)
        *status = first;
    return model;
}

QVector<LoadCase> readLoadCases(ZobHandle project, VkdStatus* status)
{
    QVector<LoadCase> loadCases;
    const VkdStatus read = readList(project, keys::LoadCases, loadCases);
    if (status)
        *status = read;
    return loadCases;
}

int getKindOfSystem(int index, structKindSystem*)
{
    const ZobHandle project(index);
    VkdStatus damage; // damaged records are skipped
    return systemOf(project, modelMark(project), &damage).kindOfSystem;
}

} // namespace dbo
} // namespace vkd
