#include "FaultyDisk.h"
#include "ZobTestSupport.h"

#include <vkd_zob_deadline.h>
#include <ZobFilePlace.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtEndian>

#include <sqlite3.h>

static QByteArray patched(QByteArray bytes, int offset, const QByteArray& patch)
{
    return bytes.replace(offset, patch.size(), patch);
}

static int pageBytes(const QByteArray& project)
{
    return qFromBigEndian<quint16>(project.constData() + 16);
}

/// Tests opening arbitrary files as projects, and that reading a project does not change its file.
class TestZobFiles : public QObject
{
    Q_OBJECT

    /// Returns the bytes of the project after a change by another program.
    QByteArray with(const char* change) const
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        testsupport::writeFile(path, m_sound);
        changeByOther(path, change);
        return testsupport::readFile(path);
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (int i = 0; i < 3000; ++i)
            m_records << QByteArray::number(i).repeated(20);
        makeProject(m_path, m_records);
        m_sound = testsupport::readFile(m_path);
        QVERIFY(m_sound.size() > 200000);
    }

    void unusable_data()
    {
        // bytes: null means no file
        const Columns<QByteArray, int> row("bytes", "status");
        const int middle = m_sound.size() / 2;
        const int page = middle - middle % pageBytes(m_sound);
        const int foreign = VKD_ZOB_NO_PROJECT, newer = VKD_ZOB_NEWER, damaged = VKD_ZOB_DAMAGED;
        const QByteArray zero(4, '\0'), noise("\x93\x07\xFE\x5A\xC1\x88\x33\xD6");
        // A record starts with its length.
        const int firstRecord = page + qFromBigEndian<quint16>(m_sound.constData() + page + 8);
        row("no file", QByteArray(), VKD_ZOB_NO_FILE);
        row("empty file", QByteArray(""), foreign);
        row("text", QByteArray("Not a project.\n"), foreign);
        row("other application", patched(m_sound, 68, zero), foreign);
        row("newer version", patched(m_sound, 63, QByteArray(1, '\3')), newer);
        row("version 0", patched(m_sound, 60, zero), damaged);
        row("no record table", QByteArray(m_sound).replace("record", "recall"), damaged);
        row("first page only", m_sound.left(pageBytes(m_sound)), damaged);
        row("last bytes missing", m_sound.left(m_sound.size() - 100), damaged);
        row("noise at the head of a page", patched(m_sound, page, noise), damaged);
        for (const char* place : {"position = 3000", "key1 = 2", "key2 = 2"})
            row(place, with((QByteArray("UPDATE record SET ") + place + " WHERE position = 0")),
                damaged);
        row("record of 2 GB", patched(m_sound, firstRecord, "\x87\xFF\xFF\xFF\x7F"), damaged);
        row("noise in the table of contents", patched(m_sound, 100, noise), damaged);
        row("takes memory in a constraint",
            with("PRAGMA ignore_check_constraints = 1;"
                 "CREATE TABLE t(a CHECK(length(randomblob(400000000)) > 0));"
                 "INSERT INTO t VALUES(1)"),
            damaged);
        row("deletes what is put",
            with("CREATE TRIGGER t AFTER INSERT ON record BEGIN DELETE FROM record; END"), damaged);
        row("reads for ever",
            with("DROP TABLE record; CREATE VIEW record AS WITH RECURSIVE n(i) AS"
                 " (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT 1 AS key1, 1 AS key2,"
                 " i AS position, x'00' AS data FROM n"),
            damaged);
    }

    void unusable()
    {
        QFETCH(const QByteArray, bytes);
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        if (!bytes.isNull())
            testsupport::writeFile(path, bytes);
        ZobLog log;
        int index = -1;
        sqlite3_memory_highwater(1);
        QTEST(log.once(vkd_zob_open(path.toUtf8(), &index).code), "status");
        QVERIFY(sqlite3_memory_highwater(0) < 50000000);
        QCOMPARE(index, -1);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), bytes.isNull() ? 0 : 1);
        QVERIFY(bytes.isNull() || testsupport::readFile(path) == bytes);
        QCOMPARE(log.once(vkd_zob_open(folder.path().toUtf8(), &index).code), VKD_ZOB_NO_FILE);
    }

    /// Flips each bit of the page with the records. SQLite itself detects only damage to its
    /// structure.
    void flippedBits()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        const Records records{"first", "", "third record"};
        makeProject(path, records);
        const QByteArray sound = testsupport::readFile(path);
        QCOMPARE(sound.size(), 2 * pageBytes(sound));
        ZobLog log;
        for (int bit = 8 * (sound.size() - 100); bit < 8 * sound.size(); ++bit) {
            const char byte = char(sound[bit / 8] ^ (1 << bit % 8));
            testsupport::writeFile(path, patched(sound, bit / 8, QByteArray(1, byte)));
            int index = -1;
            const cd_error_t status = vkd_zob_open(path.toUtf8(), &index).code;
            if (status == VKD_ZOB_OK)
                QVERIFY2(readAll(index) == records, qPrintable(QString::number(bit)));
            vkd_zob_close(index);
            QVERIFY(status == VKD_ZOB_OK || status == VKD_ZOB_DAMAGED);
        }
    }

    /// SQLite checks all pages in a single instruction.
    void cancelledDuringTheCheck()
    {
        testsupport::FaultyDisk disk(m_folder.path());
        disk.slowDown(10); // reading all pages takes much longer than the time between two calls
        int index = -1, calls = 0;
        const VkdGoOn onlyFirst = [&calls](int) { return ++calls == 1; };
        QCOMPARE(vkd_zob_open(m_path.toUtf8(), &index, onlyFirst).code, VKD_ZOB_CANCELLED);
        QCOMPARE(index, -1);
        QCOMPARE(calls, 2);
        disk.slowDown(0);
        QVERIFY(testsupport::readFile(m_path) == m_sound);
        QVERIFY(readProject(m_path) == m_records);
    }

    void recordDamagedWhileOpen()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        testsupport::writeFile(path, m_sound);
        const int index = openProject(path);
        changeByOther(path, "UPDATE record SET data = replace(data, '5', '6') WHERE position = 5");
        ZobLog log;
        cd_error_t end = VKD_ZOB_OK;
        QVERIFY(readAll(index, 1, &end) == m_records.mid(0, 5));
        QCOMPARE(log.once(end), VKD_ZOB_DAMAGED);
        QVERIFY(vkd_zob_last_failure(index).reason.contains(QLatin1String("checksum")));
        vkd_zob_close(index);
    }

    /// Triggers are not executed and views are not read.
    void schemaChangedWhileOpen()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        ZobLog log;
        for (bool isView : {false, true}) {
            testsupport::writeFile(path, m_sound);
            const int index = openProject(path);
            changeByOther(path, isView ? "ALTER TABLE record RENAME TO t;"
                                         "CREATE VIEW record AS SELECT * FROM t"
                                       : "CREATE TRIGGER t AFTER INSERT ON record"
                                         " BEGIN DELETE FROM record; END");
            if (!isView)
                QCOMPARE(put(index, 1, 1, "new", 1), VKD_ZOB_OK);
            QVERIFY(readAll(index) == (isView ? Records() : m_records + Records{"new"}));
            QCOMPARE(log.take(), isView ? 1 : 0);
            vkd_zob_close(index);
        }
    }

    /// Reading does not change a version 1 file. The first stored change upgrades it.
    void olderVersion_data()
    {
        const Columns<bool, bool> row("isInChange", "isUpgraded");
        row("a record of its own", false, true);
        row("stored change", true, true);
        row("change that is rolled back", true, false);
    }

    void olderVersion()
    {
        QFETCH(const bool, isInChange);
        QFETCH(const bool, isUpgraded);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        const QByteArray old = with("UPDATE record SET data = substr(data, 1, length(data) - 8);"
                                    "PRAGMA user_version = 1");
        testsupport::writeFile(path, old);
        const int index = openProject(path), other = openProject(path);
        QVERIFY(readAll(index) == m_records && readAll(other) == m_records);
        QVERIFY(testsupport::readFile(path) == old);
        if (isInChange)
            vkd_zob_lock_ex(index, 1, 1);
        QCOMPARE(put(index, 1, 1, "new", 1), VKD_ZOB_OK);
        const Records changed = m_records + Records{"new"};
        QVERIFY(readAll(index) == changed);
        if (!isUpgraded) {
            ZobLog log;
            QCOMPARE(log.once(put(index, 1, 1, "x", 7)), VKD_ZOB_BAD_CALL);
        }
        vkd_zob_free_ex(index, 1, 1);
        for (int reader : {index, other, openProject(path)}) {
            QVERIFY(readAll(reader) == (isUpgraded ? changed : m_records));
            vkd_zob_close(reader);
        }
        QCOMPARE(int(testsupport::readFile(path)[63]), isUpgraded ? 2 : 1);
    }

    void readingLeavesTheFileAlone()
    {
        const QDateTime longAgo(QDate(2001, 2, 3), QTime(4, 5), Qt::UTC);
        for (bool isWritable : {true, false}) {
            QFile file(m_path);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
            file.close();
            if (!isWritable)
                QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ReadGroup));
            ZobLog log;
            const int index = openProject(m_path);
            if (!isWritable) {
                QCOMPARE(log.once(vkd_zob_lock_ex(index, 1, 1)), VKD_ZOB_READ_ONLY);
                QCOMPARE(put(index, 1, 1, "x", 1), VKD_ZOB_READ_ONLY); // the lock has logged it
                vkd_zob_free_ex(index, 1, 1);
                QCOMPARE(vkd_zob_change_status(index).code, VKD_ZOB_READ_ONLY);
                QCOMPARE(log.once(put(index, 1, 1, "x", 1)), VKD_ZOB_READ_ONLY);
            }
            QVERIFY(readAll(index) == m_records);
            QCOMPARE(vkd_zob_close(index).code, isWritable ? VKD_ZOB_OK : VKD_ZOB_READ_ONLY);
            QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
            QVERIFY(testsupport::readFile(m_path) == m_sound);
            QCOMPARE(QFileInfo(m_path).lastModified(), longAgo);
            QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files),
                     QStringList(QStringLiteral("p")));
        }
    }

    void awayFiles_data()
    {
        const Columns<QByteArray, bool> row("event", "isReadable");
        row("deleted", "rm", true);
        row("moved", "mv", true);
        row("its folder is deleted", "rmdir", true);
        row("replaced", "cp", true);
        // The journal of the other file would be rolled back into the open file.
        row("replaced by one that is being written", "write", false);
    }

    void awayFiles()
    {
        QFETCH(const QByteArray, event);
        QFETCH(const bool, isReadable);
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir(QStringLiteral("f"));
        const QString path = folder.filePath(QStringLiteral("f/p"));
        testsupport::writeFile(path, m_sound);
        const int index = openProject(path);
        QVERIFY(QFile::rename(path, folder.filePath(QStringLiteral("q"))));
        if (event != "mv")
            QFile::remove(folder.filePath(QStringLiteral("q")));
        if (event == "rmdir")
            QDir(folder.path()).rmdir(QStringLiteral("f"));
        if (event == "cp" || event == "write")
            testsupport::writeFile(path, m_sound);
        const int other = event == "write" ? openProject(path) : 0;
        beginLargeChange(other);
        int changes = -1;
        ZobLog log;
        QCOMPARE(vkd_zob_outside_changes(index, &changes), VKD_ZOB_MOVED);
        QCOMPARE(log.take(), 0);
        QCOMPARE(readAll(index) == m_records, isReadable);
        QByteArray copy;
        const auto take = [&copy](const void* bytes, int length) {
            copy.append(static_cast<const char*>(bytes), length);
            return true;
        };
        QCOMPARE(vkd_zob_copy(index, take).code, isReadable ? VKD_ZOB_OK : VKD_ZOB_MOVED);
        QCOMPARE(copy == m_sound, isReadable);
        const auto cancel = [](const void*, int) { return false; };
        QCOMPARE(vkd_zob_copy(index, cancel).code, isReadable ? VKD_ZOB_CANCELLED : VKD_ZOB_MOVED);
        log.take();
        QCOMPARE(log.once(put(index, 1, 1, "x", 1)), VKD_ZOB_MOVED);
        QCOMPARE(log.once(vkd_zob_lock_ex(index, 1, 1)), VKD_ZOB_MOVED);
        vkd_zob_free_ex(index, 1, 1);
        QCOMPARE(vkd_zob_close(index).code, VKD_ZOB_MOVED);
        vkd_zob_free_ex(other, 1, 1);
        QCOMPARE(vkd_zob_change_status(other).code, VKD_ZOB_OK);
        vkd_zob_close(other);
    }

    /// The program's own changes do not count. A project that is being written, or that a crash
    /// left half written, is not changed.
    void outsideChanges()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        const QString journal = path + QLatin1String("-journal");
        testsupport::writeFile(path, m_sound);
        const int index = openProject(path), other = openProject(path);
        ZobLog log;
        QList<int> numbers;
        const auto ask = [&numbers, index] {
            int number = -1;
            const cd_error_t status = vkd_zob_outside_changes(index, &number);
            numbers << number;
            return status;
        };
        QCOMPARE(ask(), VKD_ZOB_OK);
        QCOMPARE(put(index, 1, 1, "mine", 1), VKD_ZOB_OK);
        QCOMPARE(ask(), VKD_ZOB_OK);
        QCOMPARE(put(other, 1, 1, "theirs", 1), VKD_ZOB_OK);
        QCOMPARE(ask(), VKD_ZOB_OK);
        readAll(index); // the connection now detects the change
        QCOMPARE(put(index, 1, 1, "mine", 1), VKD_ZOB_OK);
        QCOMPARE(ask(), VKD_ZOB_OK);
        beginLargeChange(other);
        const QByteArray halfWritten = testsupport::readFile(path);
        const QByteArray halfJournal = testsupport::readFile(journal);
        QCOMPARE(ask(), VKD_ZOB_OK);
        vkd_zob_free_ex(other, 1, 1);
        QCOMPARE(vkd_zob_close(other).code, VKD_ZOB_OK);
        QCOMPARE(ask(), VKD_ZOB_OK);
        const int first = numbers[2], second = numbers[5];
        QVERIFY(first != 0 && second != first);
        QCOMPARE(numbers, QList<int>({0, 0, first, first, first, second}));
        sqlite3* locker = nullptr; // does not use the store's layer over the file system
        QVERIFY(qstrcmp(sqlite3_vfs_find(nullptr)->zName, "unix") == 0);
        QCOMPARE(sqlite3_open(path.toUtf8(), &locker), SQLITE_OK);
        QCOMPARE(sqlite3_exec(locker, "PRAGMA user_version = 2; BEGIN EXCLUSIVE", nullptr, nullptr,
                              nullptr),
                 SQLITE_OK);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(ask(), VKD_ZOB_LOCKED);
        QVERIFY(!clock.hasExpired(vkd_zob_deadline())); // does not wait for the other program
        vkd_lib_setvalue(201, 30);
        clock.start();
        QCOMPARE(log.once(put(index, 1, 1, "x", 1)), VKD_ZOB_LOCKED);
        QVERIFY(clock.hasExpired(29));
        vkd_lib_setvalue(201, 0);
        sqlite3_close(locker);
        testsupport::writeFile(path, halfWritten);
        testsupport::writeFile(journal, halfJournal);
        QCOMPARE(ask(), VKD_ZOB_LOCKED);
        QVERIFY(testsupport::readFile(path) == halfWritten);
        QVERIFY(testsupport::readFile(journal) == halfJournal);
        vkd_zob_close(index);
    }

    void placedFiles_data()
    {
        // before: the file at the path, "-" for none
        const Columns<QByteArray> row("before");
        row("no file", "-");
        row("interrupted change", "write");
        row("text", "Not a project.\n");
    }

    /// The journal of an interrupted change and files of killed programs exist next to the path.
    void placedFiles()
    {
        QFETCH(const QByteArray, before);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        testsupport::writeFile(path, m_sound);
        const int index = openProject(path);
        beginLargeChange(index);
        const QByteArray halfWritten = testsupport::readFile(path);
        const QByteArray journal = testsupport::readFile(path + QLatin1String("-journal"));
        vkd_zob_close(index);
        QFile::remove(path);
        if (before != "-")
            testsupport::writeFile(path, before == "write" ? halfWritten : before);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        const QFile::Permissions permissions = QFile::permissions(path);
        testsupport::writeFile(path + QLatin1String("-journal"), journal);
        const QString own = ZobFilePlace(path).temporaryPath();
        const auto ofProcess = [&own](qint64 process) {
            return own.left(own.lastIndexOf(QLatin1Char('-')) + 1) + QString::number(process) +
                   QLatin1String(".new");
        };
        const QString killed = ofProcess(999999999);
        testsupport::writeFile(ofProcess(1), "of a running program");
        for (const QString& left : {killed, killed + own.mid(path.size()), own})
            testsupport::writeFile(left, "of a killed program");
        ZobFilePlace place(path);
        QVERIFY2(place.status().isOk(), qPrintable(place.status().reason));
        makeProject(place.temporaryPath(), {"new"});
        QVERIFY2(place.commit().isOk(), "commit");
        QCOMPARE(readProject(path), Records{"new"});
        QVERIFY(before == "-" || QFile::permissions(path) == permissions);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files),
                 QStringList({QStringLiteral("p"), QFileInfo(ofProcess(1)).fileName()}));
    }

    void fileOfAnotherProgram()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p"));
        vkd_lib_setvalue(201, 30);
        ZobLog log;
        {
            ZobFilePlace place(path);
            makeProject(place.temporaryPath(), {"new"});
            testsupport::writeFile(path, m_sound); // another program was faster
            QCOMPARE(log.once(place.commit().code), VKD_ZOB_LOCKED);
        }
        QVERIFY(testsupport::readFile(path) == m_sound);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("p")));
        const int index = openProject(path);
        vkd_zob_lock_ex(index, 1, 1);
        QCOMPARE(log.once(ZobFilePlace(path).status().code), VKD_ZOB_LOCKED);
        vkd_zob_free_ex(index, 1, 1);
        {
            const ZobFilePlace place(path);
            QCOMPARE(log.once(vkd_zob_lock_ex(index, 1, 1)), VKD_ZOB_LOCKED);
            vkd_zob_free_ex(index, 1, 1);
        }
        QVERIFY(readAll(index) == m_records);
        vkd_zob_close(index);
        for (const QString& noFile : {folder.path(), folder.filePath(QStringLiteral("no/p"))})
            QCOMPARE(log.once(ZobFilePlace(noFile).status().code), VKD_ZOB_NO_FILE);
        for (const QString& readOnly : {path, folder.path()}) {
            QVERIFY(QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::ExeOwner));
            QCOMPARE(log.once(ZobFilePlace(path).status().code), VKD_ZOB_READ_ONLY);
            QFile::setPermissions(readOnly, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
        vkd_lib_setvalue(201, 0);
    }

    void create()
    {
        const QTemporaryDir folder;
        const QString there = folder.filePath(QStringLiteral("project"));
        const QString made = folder.filePath(QStringLiteral("Überbau.vkd"));
        testsupport::writeFile(there, m_sound);
        ZobLog log;
        int index = -1;
        for (const QString& refused : {there, folder.filePath(QStringLiteral("no/new.vkd"))})
            QCOMPARE(log.once(vkd_zob_create(refused.toUtf8(), &index).code), VKD_ZOB_NO_FILE);
        QVERIFY(testsupport::readFile(there) == m_sound);
        QCOMPARE(vkd_zob_create(made.toUtf8(), &index).code, VKD_ZOB_OK);
        int key1 = 0, key2 = 0;
        vkd_zob_kenq_ex(index, &key1, &key2, 1);
        QCOMPARE(key1, -1);
        QCOMPARE(vkd_zob_close(index).code, VKD_ZOB_OK);
        QCOMPARE(readProject(made), Records());
        QCOMPARE(log.take(), 0);
    }

private:
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("p"));
    QByteArray m_sound; ///< the bytes of a large project
    Records m_records;
};

PLIB_TEST_MAIN(TestZobFiles)
#include "tst_zobFiles.moc"
