// Reading and writing design records: from a project file to rows, and back.

#include "RatioReporter.h"

#include <record/designRecord.h>
#include <record/designStore.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>
#include <map>
#include <tuple>

#include <unistd.h>

namespace {

/// Returns parameters that change with every tenth group, so that ten records become one row.
tagZOB_QUAD_RIM recordOf(int group)
{
    tagZOB_QUAD_RIM record = plib::getDefaultMerPara(true);
    record.group = group;
    const int row = group / 10;
    record.rio = float(row);
    return record;
}

/// A project with records for the given number of groups. They form rows of ten groups each.
class Project
{
public:
    explicit Project(int groups)
        : doc(VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("p.zob"))))
    {
        data.designDoc = doc.get();
        for (int group = 0; group < groups; ++group) {
            if (group % 10 == 0)
                data.rows.push_back({nullptr, recordOf(group), {}});
            data.rows.back().groups.push_back(group);
        }
        write();
    }

    void write() { plib::writeRowsToZob(data, converted); }
    /// Changes the parameters of a row, and thus the records of its ten groups.
    void change(plib::DesignParameterRow& row) { row.record.riu = float(++m_changes); }
    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

private:
    QTemporaryDir m_folder;
    int m_changes = 0;

public:
    std::unique_ptr<VKD_H_ZOBDoc> doc;
    plib::DesignParameterData data;
    bool converted = true; // the records are already in the stored form
};

void readAndFold(benchmark::State& state)
{
    Project project(int(state.range(0)));
    for (auto _ : state) {
        plib::DesignParameterData read;
        read.designDoc = project.doc.get();
        plib::readRowsFromZob(read);
        if (read.rows.size() != project.data.rows.size())
            state.SkipWithError("the rows did not come back");
    }
}

/// Reads the same records by the same keys from an in-memory map and copies each record once.
void readFromMap(benchmark::State& state)
{
    std::map<std::tuple<int, int, int>, plib::RecordBytes> records;
    for (int i = 0; i < int(state.range(0)); ++i)
        records[{200, 6, i}] = plib::toBytes(recordOf(i));
    for (auto _ : state) {
        std::vector<tagZOB_QUAD_RIM> all;
        for (int i = 0;; ++i) {
            const auto found = records.find({200, 6, i});
            if (found == records.end())
                break;
            tagZOB_QUAD_RIM record;
            std::memcpy(&record, found->second.data(), sizeof record);
            all.push_back(record);
        }
        benchmark::DoNotOptimize(all.data());
    }
}

/// Changes every record before writing, because the store does not write unchanged pages.
void writeRecords(benchmark::State& state)
{
    Project project(int(state.range(0)));
    for (auto _ : state) {
        for (plib::DesignParameterRow& row : project.data.rows)
            project.change(row);
        project.write();
    }
    if (!project.doc->close().isOk())
        state.SkipWithError("the records were not stored");
}

void writeOneChangedRow(benchmark::State& state)
{
    Project project(int(state.range(0)));
    for (auto _ : state) {
        project.change(project.data.rows[project.data.rows.size() / 2]);
        project.write();
    }
    if (!project.doc->close().isOk())
        state.SkipWithError("the records were not stored");
}

/// Writes the same bytes to a plain file and flushes it to disk.
void writeFile(benchmark::State& state)
{
    const Project project(1);
    const QByteArray path = QFile::encodeName(project.path("plain"));
    for (auto _ : state) {
        std::FILE* file = std::fopen(path.constData(), "w");
        for (int i = 0; i < int(state.range(0)); ++i) {
            const plib::RecordBytes bytes = plib::toBytes(recordOf(i));
            std::fwrite(bytes.data(), 1, bytes.size(), file);
        }
        std::fflush(file);
        fdatasync(fileno(file));
        std::fclose(file);
    }
}

BENCHMARK(readAndFold)->Arg(10000)->Arg(20000)->Arg(100000);
BENCHMARK(readFromMap)->Arg(10000);
BENCHMARK(writeRecords)->Arg(10000)->Arg(20000)->Arg(100000)->UseRealTime();
BENCHMARK(writeRecords)->Arg(10000); // processor time
BENCHMARK(writeOneChangedRow)->Arg(10000);
BENCHMARK(writeFile)->Arg(10000)->UseRealTime();

} // namespace

int main(int argc, char* argv[])
{
    return runBenchmarks(
        argc, argv,
        {{"readAndFold/10000", "readFromMap/10000", 3.0,
          "copies the same records from a map in memory into a list"},
         {"writeRecords/10000/real_time", "writeFile/10000/real_time", 5.0,
          "writes the same bytes into a plain file and waits for the disk"},
         {"writeOneChangedRow/10000", "writeRecords/10000", 0.75, "changes and writes all rows"},
         {"readAndFold/100000", "readAndFold/20000", 1.4, "does the same, each item",
          Figure::TimePerItem},
         {"writeRecords/100000/real_time", "writeRecords/20000/real_time", 1.4,
          "does the same, each item", Figure::TimePerItem}});
}
