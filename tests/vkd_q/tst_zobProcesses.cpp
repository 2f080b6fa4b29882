#include "ZobTestSupport.h"

#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <sys/resource.h>

static QByteArray record(int round, int size)
{
    return QByteArray::number(round).leftJustified(size, '.');
}

/// Replaces the whole sequence by records with the next number; gives the first failure.
static cd_error_t writeRound(int index, int records, int size)
{
    char number[12] = "";
    int length = sizeof number - 1;
    cd_error_t result = vkd_zob_lock_ex(index, 1, 1);
    vkd_zob_get(index, 1, 1, number, &length, 0);
    const QByteArray next = record(atoi(number) + 1, size);
    for (int i = -1; i < records; ++i) {
        const cd_error_t status = put(index, 1, 1, i < 0 ? QByteArray() : next, i < 0 ? 0 : 1);
        result = result == VKD_ZOB_OK ? status : result;
    }
    vkd_zob_free_ex(index, 1, 1);
    return result;
}

/// The child: takes the project and says so; then writes so many rounds of so many records of a
/// size, with no file larger than `limit`.
static int childMain(const QVector<int>& numbers, const QString& path)
{
    const int rounds = numbers[0], limit = numbers[3];
    const int index = openProject(path);
    vkd_zob_lock_ex(index, 1, 1);
    std::puts("taken");
    std::fflush(stdout);
    vkd_zob_free_ex(index, 1, 1);
    std::signal(SIGXFSZ, SIG_IGN); // so that a write fails, as on a full disk
    const rlimit room{rlim_t(limit), rlim_t(limit)};
    setrlimit(RLIMIT_FSIZE, &room);
    cd_error_t result = VKD_ZOB_OK;
    for (int round = 0; round < rounds && result == VKD_ZOB_OK; ++round)
        result = writeRound(index, numbers[1], numbers[2]);
    const cd_error_t stored = vkd_zob_change_status(index); // of the last round
    const cd_error_t closed = vkd_zob_close(index);
    return result == VKD_ZOB_OK && stored == closed ? closed : result;
}

/// Several processes at one project, and processes that die or run out of room while they write.
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
            QVERIFY(seen.isEmpty() || seen.size() == 100);
            QCOMPARE(seen.count(seen.value(0)), seen.size());
            one.waitForFinished(1);
            two.waitForFinished(1);
        }
        QVERIFY(passes > 0);
        QCOMPARE(one.exitCode(), VKD_ZOB_OK);
        QCOMPARE(two.exitCode(), VKD_ZOB_OK);
        QCOMPARE(readAll(index).value(99), record(120, 300)); // no round was lost
        vkd_zob_close(index);
    }

    void diskFull_data()
    {
        // room: beyond the size of the file
        const Columns<int, int, int> row("records", "size", "room");
        row("not even for the journal", 300, 500, -300000);
        row("found out by the release", 600, 1000, 20000);
        row("found out by a put", 8000, 1000, 2000000);
        row("one large record", 1, 3000000, 100000);
    }

    void diskFull()
    {
        QFETCH(const int, records);
        QFETCH(const int, size);
        QFETCH(const int, room);
        Records old;
        for (int i = 0; i < 300; ++i)
            old << record(i, 1000);
        makeProject(m_path, old);
        const int limit = int(QFileInfo(m_path).size()) + room;
        QProcess child;
        QVERIFY(start(child, {1, records, size, limit}));
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitCode(), VKD_ZOB_FULL);
        QVERIFY(readProject(m_path) == old);
    }

private:
    /// Starts a child and waits until it has the project.
    bool start(QProcess& child, QVector<int> numbers) const
    {
        if (numbers.size() < 4)
            numbers << 1000000000;
        QStringList arguments{m_path};
        for (int number : numbers)
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
    if (argc == 6) {
        QVector<int> numbers;
        for (int i = 2; i < argc; ++i)
            numbers << atoi(argv[i]);
        return childMain(numbers, QString::fromLocal8Bit(argv[1]));
    }
    TestZobProcesses test;
    return testsupport::run(&test, argc, argv);
}

#include "tst_zobProcesses.moc"
