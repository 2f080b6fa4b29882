// Reading records with checksums. Files of version 1 have none, so the peer reads the same records
// without checking them.

#include "RatioReporter.h"

#include <vkd_zob.h>

#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

namespace {

constexpr int Records = 10000;
constexpr int RecordBytes = 212; // as long as a design record

void execute(const QString& path, const char* sql)
{
    sqlite3* handle = nullptr;
    if (sqlite3_open(QFile::encodeName(path).constData(), &handle) != SQLITE_OK ||
        sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(handle));
    sqlite3_close(handle);
}

/// An open project of this version with many records.
class Project
{
public:
    explicit Project(int version)
    {
        const QString path = m_folder.filePath(QStringLiteral("p.zob"));
        if (!vkd_zob_create(path.toUtf8().constData(), &m_index).isOk())
            qFatal("the project was not created");
        store();
        vkd_zob_close(m_index);
        if (version == 1)
            execute(path, "UPDATE record SET data = substr(data, 1, length(data) - 8);"
                          "PRAGMA user_version = 1");
        execute(path, "VACUUM");
        if (!vkd_zob_open(path.toUtf8().constData(), &m_index).isOk())
            qFatal("the project was not opened");
    }
    ~Project() { vkd_zob_close(m_index); }
    Q_DISABLE_COPY(Project)

    int read() const
    {
        char record[RecordBytes];
        int position = 0;
        int length = RecordBytes;
        while (vkd_zob_get(m_index, 1, 1, record, &length, position) == VKD_ZOB_OK &&
               length == RecordBytes)
            ++position;
        return position;
    }

private:
    void store() const
    {
        vkd_zob_lock_ex(m_index, 1, 1);
        for (int i = 0; i < Records; ++i)
            vkd_zob_put(m_index, 1, 1, QByteArray(RecordBytes, char(i)).constData(), &RecordBytes,
                        1);
        vkd_zob_free_ex(m_index, 1, 1);
    }

    QTemporaryDir m_folder;
    int m_index = -1;
};

void readRecords(benchmark::State& state)
{
    const Project project(int(state.range(0)));
    for (auto _ : state)
        if (project.read() != Records)
            qFatal("records are missing");
}

constexpr int WithoutChecksums = 1; // version of the file
constexpr int WithChecksums = 2;
BENCHMARK(readRecords)->Arg(WithoutChecksums)->Arg(WithChecksums);

} // namespace

int main(int argc, char* argv[])
{
    return runBenchmarks(argc, argv,
                         {{"readRecords/2", "readRecords/1", 1.05,
                           "reads the same records from a file without checksums"}});
}
