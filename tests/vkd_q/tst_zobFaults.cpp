#include "FaultyDisk.h"
#include "walkOverFaults.h"
#include "ZobTestSupport.h"

#include <ZobFilePlace.h>

#include <QTemporaryDir>

using Run = std::function<VkdStatus(const QString& path)>;
Q_DECLARE_METATYPE(Run)

namespace {
constexpr int NumberOfRecords = 30;

/// Opens a project, calls the function with its index, and closes it.
template <typename Function>
VkdStatus inProject(const QString& path, const Function& function)
{
    int index = -1;
    VkdStatus status = vkd_zob_open(path.toUtf8(), &index);
    if (status.isOk())
        status = function(index);
    vkd_zob_close(index);
    return status;
}

VkdStatus change(const QString& path, const Records& records)
{
    return inProject(path, [&records](int index) {
        vkd_zob_lock_ex(index, 1, 1);
        put(index, 1, 1, QByteArray(), 0);
        for (const QByteArray& record : records)
            put(index, 1, 1, record, 1);
        vkd_zob_free_ex(index, 1, 1);
        return vkd_zob_change_status(index);
    });
}

VkdStatus putNew(int index)
{
    return put(index, 1, 1, "new", 0) == VKD_ZOB_OK ? VkdStatus() : vkd_zob_last_failure(index);
}

VkdStatus putFirst(const QString& path)
{
    return inProject(path, putNew);
}

VkdStatus readRecords(const QString& path)
{
    return inProject(path, [](int index) {
        cd_error_t end = VKD_ZOB_END;
        const int count = readAll(index, 1, &end).size();
        if (end != VKD_ZOB_END)
            return vkd_zob_last_failure(index);
        return count == NumberOfRecords
                   ? VkdStatus()
                   : VkdStatus::failure(VKD_ZOB_FAILED, QStringLiteral("records are missing"));
    });
}

VkdStatus place(const QString& path)
{
    ZobFilePlace place(path);
    if (!place.status().isOk())
        return place.status();
    int index = -1;
    VkdStatus status = vkd_zob_create(place.temporaryPath().toUtf8(), &index);
    if (status.isOk())
        status = putNew(index);
    vkd_zob_close(index);
    return status.isOk() ? place.commit() : status;
}
} // namespace

/// Tests operations on project files while the disk fails or the power is cut.
class TestZobFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data()
    {
        // before: the file at the path
        const Columns<QByteArray, Run, int> row("before", "run", "stride");
        const Run few = [](const QString& path) { return change(path, {"a", "b", ""}); };
        const Run many = [](const QString& path) { return change(path, moreThanCache()); };
        row("read", "project", readRecords, 1);
        row("read after a crash", "crashed", readRecords, 1);
        row("change", "project", few, 1);
        const Run twice = [few](const QString& path) {
            const VkdStatus status = few(path);
            return status.isOk() ? status : few(path);
        };
        row("change repeated after a failure", "project", twice, 1);
        row("change after a crash", "crashed", few, 2);
        row("change of more than the cache", "project", many, 199);
        row("single record", "project", putFirst, 1);
        row("upgrade", "version 1", putFirst, 2);
        row("new file", "-", place, 1);
        row("new file beside an old journal", "journal", place, 1);
        row("replaced file", "project", place, 1);
        row("replaced file after a crash", "crashed", place, 2);
    }

    void walk()
    {
        QFETCH(const QByteArray, before);
        QFETCH(const Run, run);
        QFETCH(const int, stride);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        ZobLog log;
        prepare(path, before);
        testsupport::walkOverFaults(folder.path(),
                                    {[&] { return run(path).reason; }, path, stride});
    }

    void failedCreationLeavesNoFile()
    {
        using testsupport::FaultyDisk;
        ZobLog log;
        QByteArray failed("none yet");
        for (int call = 1; !failed.isEmpty(); ++call) {
            const QTemporaryDir folder;
            const QString path = folder.filePath(QStringLiteral("p"));
            bool isCreated = false;
            {
                const FaultyDisk disk(folder.path(), FaultyDisk::Fault::Once, call);
                int index = -1;
                isCreated = vkd_zob_create(path.toUtf8(), &index).isOk();
                vkd_zob_close(index);
                failed = disk.failedCall();
            }
            QVERIFY2(QFile::exists(path) == isCreated, failed);
        }
    }

private:
    static void prepare(const QString& path, const QByteArray& kind)
    {
        if (kind == "-")
            return;
        Records records;
        for (int i = 0; i < NumberOfRecords; ++i)
            records << QByteArray::number(i).repeated(100);
        makeProject(path, records);
        if (kind == "version 1")
            changeByOther(path, "UPDATE record SET data = substr(data, 1, length(data) - 8);"
                                "PRAGMA user_version = 1");
        if (kind == "crashed" || kind == "journal")
            leaveHalfWritten(path);
        if (kind == "journal")
            QVERIFY(QFile::remove(path));
    }

    /// Cuts the power after the change has been written and before its journal is removed.
    static void leaveHalfWritten(const QString& path)
    {
        const QByteArray before = testsupport::readFile(path);
        const QString journal = path + QLatin1String("-journal");
        for (int call = 1; testsupport::readFile(path) == before; ++call) {
            QFile::remove(journal); // left by the previous attempt
            testsupport::FaultyDisk disk(QFileInfo(path).path(),
                                         testsupport::FaultyDisk::Fault::PowerCut, call);
            change(path, {"half", "written"});
            disk.restart();
        }
        QVERIFY(QFile::exists(journal));
    }
};

PLIB_TEST_MAIN(TestZobFaults)
#include "tst_zobFaults.moc"
