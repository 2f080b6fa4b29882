#include "ZobTestSupport.h"

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

static QByteArray record(int round, int size)
{
    return QByteArray::number(round).leftJustified(size, '.');
}

/// The task of a child process.
struct Task
{
    int rounds = 0, records = 0, size = 0;
    int takes = 1; ///< 0: writes without taking the project
};

/// Replaces the whole sequence by records with the next number and returns the first failure.
static cd_error_t writeRound(int index, const Task& task)
{
    char number[12] = "";
    int length = sizeof number - 1;
    cd_error_t result = task.takes ? vkd_zob_lock_ex(index, 1, 1) : cd_error_t(VKD_ZOB_OK);
    vkd_zob_get(index, 1, 1, number, &length, 0);
    const QByteArray next = record(atoi(number) + 1, task.size);
    for (int i = -1; i < task.records; ++i) {
        const cd_error_t status = put(index, 1, 1, i < 0 ? QByteArray() : next, i < 0 ? 0 : 1);
        result = result == VKD_ZOB_OK ? status : result;
    }
    vkd_zob_free_ex(index, 1, 1);
    return result;
}

/// The child process: takes the project, prints a line, then writes round after round.
static int childMain(const Task& task, const QString& path)
{
    const int index = openProject(path);
    vkd_zob_lock_ex(index, 1, 1);
    std::puts("taken");
    std::fflush(stdout);
    vkd_zob_free_ex(index, 1, 1);
    cd_error_t result = VKD_ZOB_OK;
    for (int round = 0; round < task.rounds && result == VKD_ZOB_OK; ++round)
        result = writeRound(index, task);
    const cd_error_t stored = vkd_zob_change_status(index).code; // of the last round
    const cd_error_t closed = vkd_zob_close(index).code;
    return result == VKD_ZOB_OK && stored == closed ? closed : result;
}

/// Returns whether these are the records of a single round.
static bool isWhole(const Records& records)
{
    return records.size() == 100 && records.count(records[0]) == 100;
}

/// Tests several processes that use one project, and processes that are killed while writing.
class TestZobProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("p"));
        vkd_lib_setvalue(201, 0); // the default, long enough for every round
    }

    void twoWritersAndAReader()
    {
        makeProject(m_path, Records());
        QProcess one, two;
        QVERIFY(start(one, {60, 100, 300}) && start(two, {60, 100, 300}));
        const int index = openProject(m_path);
        int passes = 0;
        for (; one.state() == QProcess::Running || two.state() == QProcess::Running; ++passes) {
            const Records seen = readAll(index);
            QVERIFY(seen.isEmpty() || isWhole(seen));
            one.waitForFinished(1);
            two.waitForFinished(1);
        }
        QVERIFY(passes > 0);
        QCOMPARE(one.exitCode(), VKD_ZOB_OK);
        QCOMPARE(two.exitCode(), VKD_ZOB_OK);
        QCOMPARE(readAll(index).value(99), record(120, 300)); // no round was lost
        vkd_zob_close(index);
    }

    void killedWriters_data()
    {
        const Columns<int, bool> row("takes", "alwaysWhole");
        row("with the project taken", 1, true);
        // The control without taking shows that the kills occur during writing, and that taking is
        // needed.
        row("control without", 0, false);
    }

    void killedWriters()
    {
        QFETCH(const int, takes);
        makeProject(m_path, Records());
        int broken = 0;
        for (int kill = 0; kill < 50; ++kill) {
            QProcess child;
            QVERIFY(start(child, {1000000, 100, 300, takes}));
            child.waitForFinished(1 + kill % 25);
            child.kill();
            QVERIFY(child.waitForFinished());
            const Records left = readProject(m_path);
            broken += left.isEmpty() || isWhole(left) ? 0 : 1;
        }
        QTEST(broken == 0, "alwaysWhole");
    }

private:
    /// Starts a child process and waits until it has taken the project.
    bool start(QProcess& child, const Task& task) const
    {
        QStringList arguments{m_path};
        for (int number : {task.rounds, task.records, task.size, task.takes})
            arguments << QString::number(number);
        child.start(QCoreApplication::applicationFilePath(), arguments);
        return child.waitForReadyRead();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 6)
        return childMain({atoi(argv[2]), atoi(argv[3]), atoi(argv[4]), atoi(argv[5])},
                         QString::fromLocal8Bit(argv[1]));
    TestZobProcesses test;
    return testsupport::run(&test, argc, argv);
}

#include "tst_zobProcesses.moc"
