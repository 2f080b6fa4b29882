// Creating a project from a large model file: reading the file and storing its records.

#include "memory.h"
#include "RatioReporter.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

#include <sqlite3.h>
#include <sys/resource.h>

namespace {

void write(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0)
        qFatal("cannot write a model file");
}

/// A model file with the given number of quads in a square, and the project that is created from
/// it.
class ModelFile
{
public:
    explicit ModelFile(int quads)
    {
        const int side = int(std::sqrt(double(quads)));
        QByteArray text = R"({"title": "T", "kindOfSystem": 6,
                              "groups": [{"number": 1, "title": "G"}], "nodes": [[1, 0, 0, 0])";
        for (int i = 1; i < (side + 1) * (side + 1); ++i)
            add(text, {i + 1, i % (side + 1), i / (side + 1), 0});
        text += R"(], "quads": [[1, 1, 1, 2, 3, 0, 0.2])";
        for (int i = 1; i < side * side; ++i) {
            const int corner = i / side * (side + 1) + i % side + 1;
            add(text, {i + 1, 1, corner, corner + 1, corner + side + 2, corner + side + 1, 1});
        }
        write(path(), text + "]}");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("model.json")); }
    QString project() const { return m_folder.filePath(QStringLiteral("p.zob")); }
    QString copy() const { return m_folder.filePath(QStringLiteral("copy.db")); }

private:
    static void add(QByteArray& text, std::initializer_list<int> values)
    {
        text += ",\n[";
        for (int value : values)
            text += QByteArray::number(value) + ", ";
        text.chop(2);
        text += ']';
    }

    QTemporaryDir m_folder;
};

/// Returns the model file with the number of quads of this run. The last file is cached for the
/// next run.
const ModelFile& fileOf(const benchmark::State& state)
{
    static std::unique_ptr<ModelFile> file;
    static int64_t known = 0;
    if (known != state.range(0))
        file = std::make_unique<ModelFile>(int(state.range(0)));
    known = state.range(0);
    return *file;
}

void makeProject(const ModelFile& file)
{
    vkd::dbo::Model model;
    if (!vkd::dbo::readModelFile(file.path(), vkd::Language::English, &model).isOk())
        qFatal("the model is not readable");
    QFile::remove(file.project());
    const auto doc = VKD_H_ZOBDoc::create(file.project());
    if (!vkd::dbo::storeModel(doc->handle(), model).isOk() || !doc->close().isOk())
        qFatal("the model was not stored");
}

void newProject(benchmark::State& state)
{
    const ModelFile& file = fileOf(state);
    for (auto _ : state)
        makeProject(file);
}

/// Measures the peak memory use while the file is read.
void readModel(benchmark::State& state)
{
    const ModelFile& file = fileOf(state);
    double most = 0;
    for (auto _ : state) {
        const double before = heapInUse();
        const VkdGoOn measure = [&](int) {
            most = std::max(most, heapInUse() - before);
            return true;
        };
        vkd::dbo::Model model;
        if (!vkd::dbo::readModelFile(file.path(), vkd::Language::English, &model, measure).isOk())
            qFatal("the model is not readable");
        measure(0);
    }
    state.counters["bytes"] = most;
}

void fileSize(benchmark::State& state)
{
    const ModelFile& file = fileOf(state);
    for (auto _ : state)
        state.counters["bytes"] = double(QFile(file.path()).size());
}

/// Writes a model file with this number of secondary groups, each with its own design record.
void writeDesignModel(const QString& path, int records)
{
    QByteArray groups, design;
    for (int i = 0; i < records; ++i) {
        const QByteArray name = 'G' + QByteArray::number(i, 36).rightJustified(3, '0');
        groups += R"({"title": "S", "name": ")" + name + R"("},)";
        design += R"({"values": {"hio": 0.04}, "groups": [")" + name + R"("]},)";
    }
    groups.chop(1);
    design.chop(1);
    write(path, R"({"title": "T", "kindOfSystem": 20, "nodes": [], "groups": [],
                   "secondaryGroups": [)" +
                    groups + R"(], "designParameters": [)" + design + "]}");
}

/// Reads a model file with this number of keys in objects of this size, which must be refused.
void readKeys(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("model.json"));
    QByteArray text = R"({"title": "T", "x": [)";
    for (int64_t i = 0; i < state.range(0); ++i)
        text += QByteArray(i % state.range(1) ? ", \"k"
                           : i                ? "}, {\"k"
                                              : "{\"k") +
                QByteArray::number(qint64(i)) + "\": 0";
    write(path, text + "}]}");
    vkd::dbo::Model model;
    for (auto _ : state)
        if (vkd::dbo::readModelFile(path, vkd::Language::English, &model).isOk())
            qFatal("an unknown key was accepted");
}

/// Creates projects from a model file with titles of 10 kB each and this size in total.
void newTitles(benchmark::State& state)
{
    const ModelFile file(1);
    QByteArray loadCases;
    for (int i = 1; i <= int(state.range(0)) / 10000; ++i)
        loadCases += QByteArray(i == 1 ? "" : ",") + R"({"number": )" + QByteArray::number(i) +
                     R"(, "title": ")" + QByteArray(10000, 'x') + R"("})";
    write(file.path(), R"({"title": "T", "kindOfSystem": 6, "nodes": [], "groups": [],
                          "loadCases": [)" +
                           loadCases + "]}");
    for (auto _ : state)
        makeProject(file);
}

/// Returns the processor time of all child processes.
double childSeconds()
{
    rusage usage;
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return double(time.tv_sec) + 1e-6 * double(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Runs the command `new` on a model with design records.
void newDesignRecords(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString model = folder.filePath(QStringLiteral("model.json"));
    const QString project = folder.filePath(QStringLiteral("p.zob"));
    writeDesignModel(model, int(state.range(0)));
    for (auto _ : state) {
        QFile::remove(project);
        const double before = childSeconds();
        QProcess command;
        command.setStandardOutputFile(QProcess::nullDevice());
        command.start(QStringLiteral(WORKBENCH),
                      {QStringLiteral("new"), project, QStringLiteral("--model"), model});
        if (!command.waitForFinished(-1) || command.exitCode() != EXIT_SUCCESS)
            qFatal("the project was not created");
        state.SetIterationTime(childSeconds() - before);
    }
}

/// A database that is closed on destruction.
class Database
{
public:
    explicit Database(const QString& path)
    {
        if (sqlite3_open(QFile::encodeName(path).constData(), &m_handle) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(m_handle));
    }
    ~Database() { sqlite3_close(m_handle); }
    Q_DISABLE_COPY(Database)

    void execute(const char* sql) { check(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr)); }

    template <typename Use>
    void eachRow(const char* sql, const Use& use)
    {
        sqlite3_stmt* statement = nullptr;
        check(sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr));
        while (use(statement) && sqlite3_step(statement) == SQLITE_ROW) {
        }
        sqlite3_finalize(statement);
    }

private:
    void check(int code)
    {
        if (code != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(m_handle));
    }

    sqlite3* m_handle = nullptr;
};

struct Record
{
    int keys[3];
    QByteArray bytes;
};

std::vector<Record> recordsOf(const QString& project)
{
    std::vector<Record> records;
    Database(project).eachRow(
        "SELECT key1, key2, position, data FROM record", [&](sqlite3_stmt* row) {
            if (sqlite3_data_count(row) == 0)
                return true;
            Record record;
            for (int i = 0; i < 3; ++i)
                record.keys[i] = sqlite3_column_int(row, i);
            record.bytes = QByteArray(static_cast<const char*>(sqlite3_column_blob(row, 3)),
                                      sqlite3_column_bytes(row, 3));
            records.push_back(record);
            return true;
        });
    return records;
}

void writeRecords(const QString& path, const std::vector<Record>& records)
{
    QFile::remove(path);
    Database database(path);
    database.execute("CREATE TABLE record(key1 INTEGER, key2 INTEGER, position INTEGER, data BLOB,"
                     " PRIMARY KEY(key1, key2, position)) WITHOUT ROWID; BEGIN");
    database.eachRow("INSERT INTO record VALUES(?, ?, ?, ?)", [&](sqlite3_stmt* row) {
        for (const Record& record : records) {
            for (int i = 0; i < 3; ++i)
                sqlite3_bind_int(row, i + 1, record.keys[i]);
            sqlite3_bind_blob(row, 4, record.bytes.constData(), record.bytes.size(), SQLITE_STATIC);
            sqlite3_step(row);
            sqlite3_reset(row);
        }
        return false;
    });
    database.execute("COMMIT");
}

void parseAndWrite(benchmark::State& state)
{
    const ModelFile& file = fileOf(state);
    makeProject(file);
    const std::vector<Record> records = recordsOf(file.project());
    for (auto _ : state) {
        QFile json(file.path());
        if (!json.open(QIODevice::ReadOnly))
            qFatal("the model file is gone");
        benchmark::DoNotOptimize(QJsonDocument::fromJson(json.readAll()).object().size());
        writeRecords(file.copy(), records);
    }
}

constexpr int Quads = 250000;
BENCHMARK(newProject)->Arg(Quads)->Arg(1000000);
BENCHMARK(parseAndWrite)->Arg(Quads);
BENCHMARK(readModel)->Arg(Quads);
BENCHMARK(fileSize)->Arg(Quads);
BENCHMARK(newDesignRecords)->Arg(1000)->Arg(4000)->UseManualTime();
BENCHMARK(readKeys)->Args({500000, 1000})->Args({1000000, 1000})->Args({1000000, 1000000});
BENCHMARK(newTitles)->Arg(8000000)->Arg(16000000);

} // namespace

int main(int argc, char* argv[])
{
    return runBenchmarks(
        argc, argv,
        {{"newProject/250000", "parseAndWrite/250000", 1.3,
          "parses the file with QJsonDocument and inserts the same records"},
         {"newProject/1000000", "newProject/250000", 1.4, "does the same, each item",
          Figure::TimePerItem},
         {"readModel/250000", "fileSize/250000", 4.0, "is the size of the file", Figure::Memory},
         {"newDesignRecords/4000/manual_time", "newDesignRecords/1000/manual_time", 2.0,
          "does the same, each item", Figure::TimePerItem},
         {"readKeys/1000000/1000", "readKeys/500000/1000", 3.0,
          "does the same with half as many keys"},
         {"readKeys/1000000/1000000", "readKeys/1000000/1000", 1.0,
          "reads as many keys in objects of 1000 keys"},
         {"newTitles/16000000", "newTitles/8000000", 3.0, "does the same with half the titles"}});
}
