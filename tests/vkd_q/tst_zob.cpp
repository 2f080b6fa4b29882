#include "ZobTestSupport.h"

#include <ZobSnapshot.h>
#include <ZobTransaction.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <optional>

/// Tests the records of a project and its lock using two indexes of the same file, which contains
/// the records "old 0" and "old 1", keyed by 1, 1.
class TestZob : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        m_log.emplace();
        const QString path = m_folder->filePath(QStringLiteral("Träger.vkd"));
        makeProject(path, m_old);
        m_first = openProject(path);
        m_second = openProject(path);
        QVERIFY(m_first > 0 && m_second > 0 && m_first != m_second);
        vkd_lib_setvalue(201, 30);
    }

    void cleanup()
    {
        for (int index : {m_first, m_second})
            if (index > 0)
                vkd_zob_close(index);
        const int lines = m_log->take();
        m_log.reset();
        QCOMPARE(lines, 0);
    }

    void sequence()
    {
        // `puts`: "=" writes the first record, "+" appends a record
        const auto sequenceOf = [](int index, bool isTaken, const QString& puts) {
            if (isTaken)
                vkd_zob_lock_ex(index, 1, 7);
            put(index, 1, 7, QByteArray(), 0);
            for (int neighbour : {6, 8})
                put(index, 1, neighbour, "other", 0);
            for (const QByteArray& one : puts.toUtf8().split(' '))
                if (put(index, 1, 7, one.mid(1), one[0] == '+' ? 1 : 0) != VKD_ZOB_OK)
                    return QStringLiteral("refused");
            if (isTaken)
                vkd_zob_free_ex(index, 1, 7);
            cd_error_t end = -1;
            const QByteArray found = readAll(index, 7, &end).join(',');
            for (int neighbour : {6, 8})
                if (readAll(index, neighbour) != Records{"other"})
                    return QStringLiteral("others changed");
            return QString::fromUtf8(found + (end == VKD_ZOB_END ? "." : " no key"));
        };
        for (const auto& [index, isTaken] :
             {std::pair(0, false), {m_first, false}, {m_first, true}})
            compareCases([&, index = index, isTaken = isTaken](
                             const QString& puts) { return sequenceOf(index, isTaken, puts); },
                         R"(
+a +b => a,b.
=a => a.
+a +b +c =x => x,b,c.
+ +b + +d => ,b,,d.
+a +b = =>  no key
= =>  no key
+a +b = +c => c.
+a +b =x +c => x,b,c.
+a +b = +c =x => x.
)");
    }

    void delivery()
    {
        const struct
        {
            int size, position, key2, status;
            const char* buffer;
        } rows[] = {
            {8, 0, 1, VKD_ZOB_OK, "old 0..."},        {5, 1, 1, VKD_ZOB_OK, "old 1..."},
            {3, 0, 1, VKD_ZOB_CUT, "old....."},       {0, 0, 1, VKD_ZOB_CUT, "........"},
            {8, 2, 1, VKD_ZOB_END, "........"},       {8, 0, 2, VKD_ZOB_NO_KEY, "........"},
            {8, -1, 1, VKD_ZOB_BAD_CALL, "........"}, {-1, 0, 1, VKD_ZOB_BAD_CALL, "........"}};
        for (const auto& row : rows) {
            QByteArray buffer(8, '.');
            int length = row.size;
            QCOMPARE(vkd_zob_get(m_first, 1, row.key2, buffer.data(), &length, row.position),
                     row.status);
            QCOMPARE(buffer.constData(), row.buffer);
            QCOMPARE(length, row.status == VKD_ZOB_OK ? 5 : row.size);
            QCOMPARE(m_log->take(), row.status > VKD_ZOB_NO_KEY ? 1 : 0);
        }
    }

    void nextPair()
    {
        using Pair = QPair<int, int>;
        const QList<QPair<Pair, Pair>> cases{
            {{-5, -5}, {1, 1}}, {{35, 4}, {35, 4}}, // a used pair is returned unchanged
            {{35, 0}, {35, 4}}, {{35, 8}, {36, 0}},
            {{36, 1}, {40, 2}}, // an emptied pair is skipped
            {{40, 3}, {-1, -1}}};
        for (const Pair& used : {Pair(36, 0), Pair(40, 2), Pair(38, 0), Pair(35, 4)})
            put(m_first, used.first, used.second, "x", 1);
        put(m_first, 38, 0, QByteArray(), 0);
        for (auto [from, found] : cases) {
            vkd_zob_kenq_ex(m_first, &from.first, &from.second, 1);
            QCOMPARE(from, found);
        }
        Pair from(1, 1);
        vkd_zob_kenq_ex(m_first, &from.first, &from.second, 2);
        QCOMPARE(from, Pair(-1, -1));
        QCOMPARE(m_log->take(), 1);
    }

    void readingPassSeesOneState()
    {
        put(m_first, 1, 2, "inner", 0);
        for (bool innerPass : {false, true}) { // iterates over other records in between
            put(m_second, 1, 1, "old 0", 0);
            QCOMPARE(readOne(0), QByteArray("old 0"));
            if (innerPass)
                QCOMPARE(readAll(m_first, 2), Records{"inner"});
            QCOMPARE(m_log->once(put(m_second, 1, 1, QByteArray(), 0)), VKD_ZOB_LOCKED);
            QCOMPARE(readOne(1), QByteArray("old 1"));
            if (innerPass)
                vkd_zob_free_ex(m_first, 1, 1);
            else
                readOne(2);
            QCOMPARE(put(m_second, 1, 1, "new", 0), VKD_ZOB_OK);
            QCOMPARE(readAll(m_first), (Records{"new", "old 1"}));
        }
        QCOMPARE(readOne(1), QByteArray("old 1")); // a single record does not begin a pass
        QCOMPARE(put(m_second, 1, 1, "newer", 0), VKD_ZOB_OK);
    }

    void snapshotsAndTransactionsNest_data()
    {
        // steps: s, t and l begin a snapshot, begin a transaction or lock a pair. S, T and L end
        // the most recent snapshot, transaction or lock; C commits a transaction. r reads other
        // records, f releases a pair that is being read. A step is followed by "-" if another
        // program cannot write.
        const Columns<QString, QByteArray, int> row("steps", "writable", "stored");
        row("snapshots that overlap", "ssSS", "---+", 0);
        row("reading in a snapshot", "srrS", "---+", 0);
        row("release in a snapshot", "sfS", "--+", 0);
        row("transaction in a snapshot", "stCS", "---+", 1);
        row("snapshot in a transaction", "tsSC", "---+", 1);
        row("snapshot that outlives a transaction", "tsCS", "---+", 1);
        row("transaction that outlives a snapshot", "stSC", "---+", 1);
        row("pair in a transaction", "tlLC", "---+", 2);
        row("transaction in a pair", "ltCL", "---+", 2);
        row("transaction that outlives a pair", "ltLC", "---+", 2);
        row("transaction in a transaction", "ttCC", "---+", 2);
        row("dropped in a snapshot", "stTS", "---+", 0);
        row("dropped in a transaction", "ttTC", "---+", 0);
        row("dropped in a pair", "ltTL", "---+", 0);
    }

    void snapshotsAndTransactionsNest()
    {
        QFETCH(const QString, steps);
        QFETCH(const int, stored);
        std::vector<std::unique_ptr<ZobSnapshot>> snapshots;
        std::vector<std::unique_ptr<ZobTransaction>> transactions;
        QByteArray writable;
        for (char step : steps.toLatin1()) {
            if (QByteArray("TCL").contains(step)) // ends a part of the change
                put(m_first, 1, 1, "part", 1);
            switch (step) {
            case 's': snapshots.push_back(std::make_unique<ZobSnapshot>(ZobHandle(m_first))); break;
            case 'S': snapshots.pop_back(); break;
            case 't':
                transactions.push_back(std::make_unique<ZobTransaction>(ZobHandle(m_first)));
                break;
            case 'C': transactions.back()->commit(); Q_FALLTHROUGH();
            case 'T': transactions.pop_back(); break;
            case 'l': QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK); break;
            case 'r': readAll(m_first, 2); break;
            case 'f': readOne(0); Q_FALLTHROUGH();
            default: vkd_zob_free_ex(m_first, 1, 1);
            }
            writable += m_log->once(put(m_second, 1, 3, "x", 0)) == VKD_ZOB_LOCKED ? '-' : '+';
        }
        QTEST(writable, "writable");
        Records expected = m_old;
        for (int part = 0; part < stored; ++part)
            expected << "part";
        QCOMPARE(readAll(m_second), expected);
    }

    /// No other program can write between the end of the change and the next read.
    void snapshotOutlivesAChange()
    {
        const ZobSnapshot snapshot{ZobHandle(m_first)};
        for (bool isWhole : {true, false}) {
            ZobTransaction change{ZobHandle(m_first)};
            QCOMPARE(put(m_first, 1, 1, isWhole ? "new" : "dropped", 0), VKD_ZOB_OK);
            QCOMPARE(readAll(m_first).first(), QByteArray(isWhole ? "new" : "dropped"));
            if (isWhole)
                QVERIFY(change.commit().isOk());
        }
        {
            const ZobSnapshot other{ZobHandle(m_second)};
            ZobTransaction change{ZobHandle(m_first)};
            QCOMPARE(put(m_first, 1, 1, "refused", 0), VKD_ZOB_OK);
            QCOMPARE(m_log->once(change.commit().code), VKD_ZOB_LOCKED);
        }
        QCOMPARE(readAll(m_first), (Records{"new", "old 1"}));
        QCOMPARE(m_log->once(put(m_second, 1, 1, "other", 0)), VKD_ZOB_LOCKED);
    }

    void changeInASnapshotDoesNotWait()
    {
        auto snapshot = std::make_unique<ZobSnapshot>(ZobHandle(m_first));
        ZobTransaction other{ZobHandle(m_second)};
        QCOMPARE(put(m_second, 1, 1, "other", 0), VKD_ZOB_OK);
        vkd_lib_setvalue(201, Patience); // how long the other program would wait for the snapshot
        QCOMPARE(m_log->once(ZobTransaction(ZobHandle(m_first)).status().code), VKD_ZOB_LOCKED);
        QCOMPARE(m_log->once(put(m_first, 1, 1, "mine", 0)), VKD_ZOB_LOCKED);
        QCOMPARE(readAll(m_first), m_old);
        vkd_lib_setvalue(201, 30);
        snapshot.reset();
        QVERIFY(other.commit().isOk());
        const ZobSnapshot later{ZobHandle(m_first)};
        QVERIFY(ZobTransaction(ZobHandle(m_first))
                    .commit()
                    .isOk()); // a snapshot never becomes outdated
        QCOMPARE(readAll(m_first), (Records{"other", "old 1"}));
    }

    void snapshotDuringAWrite()
    {
        beginLargeChange(m_second);
        QCOMPARE(m_log->once(ZobSnapshot(ZobHandle(m_first)).status().code), VKD_ZOB_LOCKED);
        vkd_zob_free_ex(m_second, 1, 1);
        QVERIFY(ZobSnapshot(ZobHandle(m_first)).status().isOk());
    }

    void closingEndsSnapshotsAndTransactions()
    {
        const ZobSnapshot snapshot{ZobHandle(m_first)};
        ZobTransaction change{ZobHandle(m_first)};
        put(m_first, 1, 1, "new", 0);
        const QString path = m_folder->filePath(QStringLiteral("Träger.vkd"));
        QVERIFY(vkd_zob_close(m_first).isOk());
        m_first = openProject(path); // gets the same index
        QCOMPARE(change.commit().code, VKD_ZOB_NOT_OPEN);
        QCOMPARE(put(m_second, 1, 1, "other", 0), VKD_ZOB_OK);
        QCOMPARE(m_log->once(ZobSnapshot(ZobHandle(99)).status().code), VKD_ZOB_NOT_OPEN);
        QCOMPARE(m_log->once(ZobTransaction(ZobHandle(99)).commit().code), VKD_ZOB_NOT_OPEN);
    }

    void scratchStore()
    {
        int changes = 0;
        QCOMPARE(vkd_zob_outside_changes(0, &changes), VKD_ZOB_FAILED);
        const auto take = [](const void*, int) { return true; };
        QCOMPARE(m_log->once(vkd_zob_copy(0, take).code), VKD_ZOB_FAILED);
        QCOMPARE(m_log->once(vkd_zob_close(0).code), VKD_ZOB_BAD_CALL);
    }

    void lastReleaseStoresAndCloseDrops()
    {
        QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK);
        QCOMPARE(vkd_zob_lock_ex(m_first, 1, 2), VKD_ZOB_OK);
        QCOMPARE(put(m_first, 1, 1, "new", 0), VKD_ZOB_OK);
        QCOMPARE(readAll(m_first), (Records{"new", "old 1"}));
        vkd_zob_free_ex(m_first, 1, 1);
        vkd_zob_free_ex(m_first, 3, 3); // never locked
        QCOMPARE(readAll(m_second), m_old);
        vkd_zob_free_ex(m_first, 1, 2);
        QCOMPARE(readAll(m_second), (Records{"new", "old 1"}));
        QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK);
        QCOMPARE(put(m_first, 1, 1, "dropped", 1), VKD_ZOB_OK);
        QCOMPARE(vkd_zob_close(std::exchange(m_first, -1)).code, VKD_ZOB_OK);
        QCOMPARE(readAll(m_second), (Records{"new", "old 1"}));
        QCOMPARE(put(m_second, 1, 1, "more", 1), VKD_ZOB_OK);
    }

    void refusedTakeRefusesTheWholeChange()
    {
        QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK);
        QCOMPARE(put(m_first, 1, 1, "first", 1), VKD_ZOB_OK);
        vkd_lib_setvalue(201, 120);
        int length = 0;
        vkd_zob_get(m_second, 1, 1, nullptr, &length, 0); // not released; this is harmless
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(m_log->once(vkd_zob_lock_ex(m_second, 1, 2)), VKD_ZOB_LOCKED);
        QVERIFY(waited.elapsed() >= 115 && waited.elapsed() < 4000);
        vkd_zob_free_ex(m_first, 1, 1);
        // The file is no longer locked, but the refused program has not read the other program's
        // change.
        QCOMPARE(put(m_second, 1, 2, "second", 1), VKD_ZOB_LOCKED);
        QCOMPARE(vkd_zob_lock_ex(m_second, 1, 3), VKD_ZOB_LOCKED); // belongs to the same change
        for (int released : {2, 3}) {
            QCOMPARE(put(m_second, 1, 3, "half", 1), VKD_ZOB_LOCKED);
            QCOMPARE(readAll(m_second), m_old + Records{"first"});
            vkd_zob_free_ex(m_second, 1, released);
        }
        const QString reason = QStringLiteral("cannot lock %1: another program has locked the "
                                              "project (database is locked)")
                                   .arg(m_folder->filePath(QStringLiteral("Träger.vkd")));
        QCOMPARE(vkd_zob_change_status(m_second).code, VKD_ZOB_LOCKED);
        QCOMPARE(vkd_zob_change_status(m_second).reason, reason);
        QCOMPARE(vkd_zob_last_failure(m_second).reason, reason);
        QVERIFY(vkd_zob_last_failure(m_first).isOk());
        for (int lost : {2, 3})
            QCOMPARE(readAll(m_first, lost), Records());
        QCOMPARE(put(m_second, 1, 2, "later", 1), VKD_ZOB_OK);
        QCOMPARE(vkd_zob_close(std::exchange(m_second, -1)).code,
                 VKD_ZOB_LOCKED); // "second" is lost
    }

    void closeReportsAFailedRelease()
    {
        QCOMPARE(vkd_zob_lock_ex(m_second, 1, 1), VKD_ZOB_OK);
        QCOMPARE(put(m_second, 1, 1, "new", 1), VKD_ZOB_OK);
        QCOMPARE(readOne(0), QByteArray("old 0")); // begins an iteration without ending it
        vkd_zob_free_ex(m_second, 1, 1);
        QCOMPARE(m_log->take(), 1);
        vkd_zob_free_ex(m_first, 1, 1);
        QCOMPARE(readAll(m_second), m_old);
        QCOMPARE(vkd_zob_close(std::exchange(m_second, -1)).code, VKD_ZOB_LOCKED);
    }

    void changesAppendAfterEachOther()
    {
        Records expected = m_old;
        for (int index : {m_first, m_second, m_first}) {
            ZobTransaction change{ZobHandle(index)};
            QCOMPARE(put(index, 1, 1, "more", 1), VKD_ZOB_OK);
            if (index == m_first)
                readOne(0); // the commit ends this iteration
            QVERIFY(change.commit().isOk());
            expected << "more";
        }
        for (int index : {m_second, m_first})
            QCOMPARE(put(index, 1, 1, "more", 1), VKD_ZOB_OK);
        QCOMPARE(readAll(m_first), expected + Records({"more", "more"}));
    }

    void replacedSequence_data()
    {
        const Columns<QByteArray, Records> row("changedByOther", "records");
        row("empty", "", {});
        row("longer record", "", {"old 0 is longer", "old 1"});
        row("gap", "UPDATE record SET position=5 WHERE position=1", {"a", "b", "c"});
        row("negative position", "UPDATE record SET position=-1 WHERE position=1", {});
    }

    void replacedSequence()
    {
        QFETCH(const QByteArray, changedByOther);
        QFETCH(const Records, records);
        changeByOther(m_folder->filePath(QStringLiteral("Träger.vkd")), changedByOther);
        for (bool readsWithinTheChange : {false, true}) {
            QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK);
            put(m_first, 1, 1, QByteArray(), 0);
            for (int count = 0; count < records.size(); ++count) {
                if (readsWithinTheChange)
                    QCOMPARE(readAll(m_first), records.mid(0, count));
                QCOMPARE(put(m_first, 1, 1, records[count], 1), VKD_ZOB_OK);
            }
            vkd_zob_free_ex(m_first, 1, 1);
            cd_error_t end = -1;
            QCOMPARE(readAll(m_second, 1, &end), records);
            QCOMPARE(end, records.isEmpty() ? VKD_ZOB_NO_KEY : VKD_ZOB_END);
        }
    }

    void failureDropsTheChange_data()
    {
        const Columns<int, int> row("length", "position");
        row("read instead of put", 1, -1);
        row("record beyond 256 MB", 256 * 1024 * 1024 + 1, 1);
        row("negative length", -1, 1);
        row("position in the middle", 1, 2);
    }

    void failureDropsTheChange()
    {
        QFETCH(const int, length);
        QFETCH(const int, position);
        QCOMPARE(vkd_zob_lock_ex(m_first, 1, 1), VKD_ZOB_OK);
        QCOMPARE(put(m_first, 1, 1, QByteArray(), 0), VKD_ZOB_OK);
        char record = 'x';
        int size = length;
        const cd_error_t failed = position < 0
                                      ? vkd_zob_get(m_first, 1, 1, &record, &size, position)
                                      : vkd_zob_put(m_first, 1, 1, &record, &size, position);
        QCOMPARE(m_log->once(failed), VKD_ZOB_BAD_CALL);
        QCOMPARE(put(m_first, 1, 1, "new", 1), VKD_ZOB_BAD_CALL); // does not log another message
        vkd_zob_free_ex(m_first, 1, 1);
        QCOMPARE(readAll(m_first), m_old);
        QCOMPARE(vkd_zob_close(std::exchange(m_first, -1)).code, VKD_ZOB_BAD_CALL);
    }

private:
    QByteArray readOne(int position) const
    {
        QByteArray buffer(8, '.');
        int length = buffer.size();
        vkd_zob_get(m_first, 1, 1, buffer.data(), &length, position);
        return buffer.left(length);
    }

    const Records m_old{"old 0", "old 1"};
    std::optional<QTemporaryDir> m_folder;
    std::optional<ZobLog> m_log;
    int m_first = -1, m_second = -1;
};

PLIB_TEST_MAIN(TestZob)
#include "tst_zob.moc"
