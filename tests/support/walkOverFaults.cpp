#include "walkOverFaults.h"

#include "FaultyDisk.h"
#include "TestSupport.h"

#include <vkd_zob.h>

#include <QDir>
#include <QMap>

#include <algorithm>
#include <string_view>

namespace testsupport {

namespace {
using Fault = FaultyDisk::Fault;
using Files = QMap<QString, QByteArray>;

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files);
}

Files filesIn(const QString& folder)
{
    Files files;
    const QStringList names = namesIn(folder);
    for (const QString& name : names)
        files[name] = readFile(QDir(folder).filePath(name));
    return files;
}

void setFiles(const QString& folder, const Files& files)
{
    const QStringList names = namesIn(folder);
    for (const QString& name : names)
        QFile::remove(QDir(folder).filePath(name));
    for (auto file = files.begin(); file != files.end(); ++file)
        writeFile(QDir(folder).filePath(file.key()), file.value());
}

QByteArray hashOf(const QByteArray& bytes, int length)
{
    return QByteArray::number(
        quint64(std::hash<std::string_view>()({bytes.data(), size_t(length)})));
}

/// Returns a text that represents all records. If they cannot be read, returns another text.
QByteArray stateOf(const QString& project)
{
    constexpr int Title = 10; // key of a single record, which contains a random number
    if (!QFile::exists(project))
        return "no file";
    int index = -1;
    if (!vkd_zob_open(project.toUtf8(), &index).isOk())
        return "unreadable";
    QByteArray records, record(1100000, Qt::Uninitialized);
    int key1 = 0, key2 = 0;
    for (vkd_zob_kenq_ex(index, &key1, &key2, 1); key1 >= 0;
         vkd_zob_kenq_ex(index, &key1, &key2, 1)) {
        int length = record.size();
        for (int i = key1 == Title; vkd_zob_get(index, key1, key2, record.data(), &length, i) == 0;
             ++i, length = record.size())
            records += QByteArray::number(length) + ':' + hashOf(record, length) + '|';
        ++key2;
    }
    vkd_zob_close(index);
    return records;
}

/// Returns the stride of the walk. The environment variable PLIB_FAULT_STRIDE replaces it.
int strideOf(const Operation& operation)
{
    bool isGiven = false;
    const int stride = qEnvironmentVariableIntValue("PLIB_FAULT_STRIDE", &isGiven);
    return isGiven ? qMax(stride, 1) : operation.stride;
}

class Walk
{
    // Defined before it is used, because its return type is deduced.
    /// Calls the function on a simulated disk without faults, which is faster because no data is
    /// really synced.
    template <typename Function>
    auto onSoundDisk(const Function& function) const
    {
        const FaultyDisk sound(m_folder);
        return function();
    }

public:
    Walk(const QString& folder, const Operation& operation)
        : m_folder(folder)
        , m_operation(operation)
        , m_stride(strideOf(operation))
        , m_filesBefore(filesIn(folder))
        , m_old(state())
        , m_reason(onSoundDisk(operation.run))
        , m_new(state())
        , m_namesAfter(namesIn(folder))
    {
        expect(m_reason.isEmpty(), "it fails on a sound disk");
    }

    /// Returns the number of calls for which the disk has failed.
    int walk(Fault fault)
    {
        int failures = 0;
        for (int call = 1 + int(fault) % m_stride; runWith(fault, call); call += m_stride) {
            checkResult(fault);
            checkRepetition();
            ++failures;
        }
        checkResult(fault);
        return failures;
    }
    const QStringList& problems() const { return m_problems; }

private:
    /// Returns false if the operation makes fewer calls.
    bool runWith(Fault fault, int call)
    {
        setFiles(m_folder, m_filesBefore);
        FaultyDisk faulty(m_folder, fault, call);
        m_reason = m_operation.run();
        m_failedCall = faulty.failedCall();
        m_place = QStringLiteral("fault %1 at call %2, ").arg(int(fault)).arg(call) +
                  QString::fromUtf8(m_failedCall);
        if (m_reason.isEmpty() || isCut(fault))
            faulty.restart();
        return !m_failedCall.isEmpty();
    }

    void checkResult(Fault fault)
    {
        m_state = state();
        const QStringList left = namesIn(m_folder);
        expect(m_state == m_old || m_state == m_new, "neither the old state nor the new one");
        if (m_reason.isEmpty())
            return expect(m_state == m_new, "success, but the new state is not stored");
        const QLatin1String cause(fault == Fault::Full ? "No space left" : "Input/output error");
        expect(m_reason.contains(cause), "the system's reason is missing");
        // It is unknown whether this change would survive a power cut.
        const bool isInDoubt = isCut(fault) || m_failedCall == "sync .";
        expect(isInDoubt || m_state == m_old, "failure, but the new state is stored");
        expect(
            fault != Fault::Once || isInDoubt || m_failedCall.startsWith("remove") ||
                std::all_of(left.begin(), left.end(),
                            [this](const QString& file) { return m_filesBefore.contains(file); }),
            "a failure leaves files");
    }

    void checkRepetition()
    {
        if (m_state == m_new && m_new != m_old)
            return;
        m_reason = onSoundDisk(m_operation.run);
        expect(m_reason.isEmpty(), "repeating it fails");
        expect(state() == m_new, "repeating it stores another state");
        expect(namesIn(m_folder) == m_namesAfter, "repeating it leaves files");
    }

    /// Also rolls back a journal.
    QByteArray state() const
    {
        return onSoundDisk([this] { return stateOf(m_operation.project); });
    }

    static bool isCut(Fault fault) { return fault >= Fault::PowerCut && fault < Fault::None; }

    void expect(bool condition, const char* problem)
    {
        if (!condition)
            m_problems << QStringLiteral("\n%1: %2; %3; files: %4")
                              .arg(m_place, QLatin1String(problem), m_reason,
                                   namesIn(m_folder).join(QLatin1Char(' ')));
    }

    const QString m_folder;
    const Operation m_operation;
    const int m_stride;
    const Files m_filesBefore;
    const QByteArray m_old;
    QString m_reason;
    const QByteArray m_new;
    const QStringList m_namesAfter;
    QByteArray m_failedCall, m_state;
    QString m_place;
    QStringList m_problems;
};
} // namespace

void walkOverFaults(const QString& folder, const Operation& operation)
{
    Walk walk(folder, operation);
    QString failures;
    for (const Fault fault : {Fault::Once, Fault::ForGood, Fault::Full, Fault::PowerCut,
                              Fault::TornCut, Fault::TornCut, Fault::NameCut})
        failures += QLatin1Char(' ') + QString::number(walk.walk(fault));
    qInfo("failures:%s", qPrintable(failures));
    const QStringList problems = walk.problems();
    QVERIFY2(problems.isEmpty(), qPrintable(QStringList(problems.mid(0, 20)).join(QString())));
}

} // namespace testsupport
