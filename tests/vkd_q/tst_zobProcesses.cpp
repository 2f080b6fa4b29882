#include "ZobTestSupport.h"

#include <ZobSnapshot.h>

#include <QElapsedTimer>
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
    int rounds = 0; ///< 0: exits during the first change
    int records = 0, size = 0;
    int takes = 1; ///< 0: writes without locking the project
    int waits = 1; ///< 0: does not wait for other processes, and skips refused rounds
    int milliseconds = Unlimited;

    static constexpr int Unlimited = 1000000000;
};

/// Replaces the whole sequence with records that contain the next number, also writes one of the
/// records under another key pair, and returns the first failure. A process that is to be killed
/// prints a dot after each record. Other processes do not, because their output is read at the end,
/// and a full pipe would block them while they lock the project.
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
        if (task.milliseconds == Task::Unlimited)
            std::putchar('.');
    }
    const cd_error_t status = put(index, 1, 2, next, 0);
    vkd_zob_free_ex(index, 1, 1);
    return result == VKD_ZOB_OK ? status : result;
}

/// Runs in the child process. Locks the project, prints a line, writes round after round, and
/// prints the number of stored rounds.
static int childMain(const Task& task, const QString& path)
{
    const int index = openProject(path);
    vkd_zob_lock_ex(index, 1, 1);
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    std::fputs("taken\n", stdout); // in one step
    if (task.rounds == 0) {
        put(index, 1, 1, record(2, task.size), 1);
        return 0; // during the change
    }
    vkd_zob_free_ex(index, 1, 1);
    cd_error_t result = VKD_ZOB_OK;
    vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, task.waits ? Patience : 1);
    QElapsedTimer clock;
    clock.start();
    int storedRounds = 0;
    for (int round = 0; round < task.rounds && result == VKD_ZOB_OK; ++round) {
        result = writeRound(index, task);
        storedRounds += result == VKD_ZOB_OK && vkd_zob_change_status(index).isOk();
        if (result == VKD_ZOB_LOCKED && !task.waits)
            result = VKD_ZOB_OK;
        if (clock.hasExpired(task.milliseconds))
            break;
    }
    std::printf("%d\n", storedRounds);
    const cd_error_t stored = vkd_zob_change_status(index).code; // status of the last round
    const cd_error_t closed = vkd_zob_close(index).code;
    return result == VKD_ZOB_OK && (stored == closed || !task.waits) ? closed : result;
}

/// Returns whether these are the records of a single round.
static bool isWhole(const Records& records)
{
    return records.size() == 100 && records.count(records[0]) == 100;
}

/// Tests several processes that use the same project, and processes that are killed while writing.
class TestZobProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("p"));
        vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, Patience);
    }

    /// No reader sees a mixture of two rounds, and no round that was reported as stored is lost.
    /// The third writer does not wait, so many of its rounds are refused.
    void threeWritersAndAReader()
    {
        makeProject(m_path, Records());
        QProcess writers[3];
        for (QProcess& writer : writers) {
            const int waits = &writer != &writers[2];
            QVERIFY(start(writer, {1000000, 100, 300, 1, waits, 2500}));
        }
        const int index = openProject(m_path);
        int last = 0, rounds = 0;
        for (QProcess& writer : writers)
            while (!writer.waitForFinished(1) && writer.state() == QProcess::Running) {
                int changes = 0;
                vkd_zob_outside_changes(index, &changes); // does not wait; the snapshot does
                const ZobSnapshot snapshot{ZobHandle(index)};
                QVERIFY(snapshot.status().isOk());
                const Records seen = readAll(index);
                QVERIFY(seen.isEmpty() || isWhole(seen));
                QCOMPARE(readAll(index, 2), seen.mid(0, 1));
                const int round = seen.value(0).replace('.', "").toInt();
                QVERIFY(round >= std::exchange(last, round));
            }
        for (QProcess& writer : writers) {
            const int code = writer.exitCode();
            QVERIFY(code == VKD_ZOB_OK || (code == VKD_ZOB_LOCKED && &writer == &writers[2]));
            rounds += writer.readAll().trimmed().toInt();
        }
        QVERIFY(rounds > 3 && last > 0);
        QCOMPARE(readAll(index).value(99), record(rounds, 300));
        vkd_zob_close(index);
    }

    void killedWriters_data()
    {
        const Columns<int, bool> row("takes", "alwaysWhole");
        row("with the project taken", 1, true);
        // The control run without locking shows that the processes are killed while they write, and
        // that locking is necessary.
        row("control without", 0, false);
    }

    /// Each process is killed after a number of records, regardless of the speed of the machine.
    void killedWriters()
    {
        QFETCH(const int, takes);
        makeProject(m_path, Records());
        int broken = 0;
        for (int records = 0; records < 350 && broken == 0; records += 7) { // up to several rounds
            QProcess child;
            QVERIFY(start(child, {1000000, 100, 300, takes}));
            while (child.bytesAvailable() <= records)
                QVERIFY(child.waitForReadyRead(Patience));
            child.kill();
            QVERIFY(child.waitForFinished(Patience));
            const Records left = readProject(m_path);
            broken += left.isEmpty() || isWhole(left) ? 0 : 1;
        }
        QTEST(broken == 0, "alwaysWhole");
    }

    /// A process that exits during a change leaves neither a part of the change nor a journal.
    void exitDuringAChange()
    {
        makeProject(m_path, {record(1, 300)});
        QProcess child;
        QVERIFY(start(child, {0, 0, 300}));
        QVERIFY(child.waitForFinished(Patience));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).join(QLatin1Char(' ')),
                 QStringLiteral("p"));
        QCOMPARE(readProject(m_path), Records{record(1, 300)});
    }

private:
    /// Starts a child process and waits until it has locked the project.
    bool start(QProcess& child, const Task& task) const
    {
        QStringList arguments{m_path};
        for (int number :
             {task.rounds, task.records, task.size, task.takes, task.waits, task.milliseconds})
            arguments << QString::number(number);
        child.start(QCoreApplication::applicationFilePath(), arguments);
        return child.waitForReadyRead(Patience) && child.readLine() == "taken\n";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 8)
        return childMain({atoi(argv[2]), atoi(argv[3]), atoi(argv[4]), atoi(argv[5]), atoi(argv[6]),
                          atoi(argv[7])},
                         QString::fromLocal8Bit(argv[1]));
    TestZobProcesses test;
    return testsupport::run(&test, argc, argv);
}

#include "tst_zobProcesses.moc"
