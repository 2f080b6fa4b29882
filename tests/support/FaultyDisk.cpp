#undef _FORTIFY_SOURCE // because it would define some of the replaced functions inline

#include "FaultyDisk.h"

#include "TestSupport.h"

#include <QDir>
#include <QMap>

#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <random>
#include <thread>
#include <unistd.h>
#include <vector>

namespace testsupport {

namespace {
using Fault = FaultyDisk::Fault;
enum class Call { Read, Write, Other }; // only Write needs disk space

using Names = QMap<QByteArray, size_t>; // maps file names in the folder to file indexes

/// A file was created, removed or renamed.
struct NameChange
{
    QByteArray removed, added; // file names; empty if none was removed or added
    size_t file;

    void apply(Names& names) const
    {
        names.remove(removed);
        if (!added.isEmpty())
            names[added] = file;
    }
};

struct Disk
{
    QByteArray folder;
    std::vector<QByteArray> synced;  // contents of each file when it was last synced
    Names names, syncedNames;        // current names; names when the folder was last synced
    std::vector<NameChange> changes; // changes since the folder was last synced
    Fault fault = Fault::None;
    int call = 0, calls = 0;
    QByteArray failedCall;
    std::chrono::milliseconds readTime{0};
};
std::unique_ptr<Disk> disk;
thread_local bool isOwnCall = false;
std::recursive_mutex mutex; // the store checks a file in a separate thread

/// Returns the name of a file in the folder, "." for the folder itself, or an empty name for any
/// other file.
QByteArray nameOf(const QByteArray& path)
{
    if (!disk || !path.startsWith(disk->folder))
        return {};
    return path == disk->folder ? QByteArray(".") : path.mid(disk->folder.size() + 1);
}

QByteArray nameOf(int descriptor)
{
    char path[4096];
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
    const ssize_t length = disk ? readlink(link.constData(), path, sizeof path) : 0;
    return length > 0 ? nameOf(QByteArray(path, int(length))) : QByteArray();
}

/// Counts the call, and sets errno if the call has to fail.
bool fails(Call call, const char* function, const QByteArray& name)
{
    ++disk->calls;
    const bool isFirst = disk->failedCall.isEmpty();
    if (disk->fault == Fault::None || disk->calls < disk->call ||
        (disk->fault == Fault::Full && call != Call::Write) ||
        (disk->fault == Fault::Once && !isFirst))
        return false;
    if (isFirst)
        disk->failedCall = QByteArray(function) + ' ' + name;
    errno = disk->fault == Fault::Full ? ENOSPC : EIO;
    return true;
}

/// Returns the content without counting the calls.
QByteArray contentOf(const QByteArray& name)
{
    isOwnCall = true;
    const QByteArray content = readFile(QFile::decodeName(disk->folder + '/' + name));
    isOwnCall = false;
    return content;
}

void sync(const QByteArray& name)
{
    if (name == ".") {
        disk->syncedNames = disk->names;
        disk->changes.clear();
    } else if (disk->names.contains(name)) { // otherwise, it was deleted while open
        disk->synced[disk->names[name]] = contentOf(name);
    }
}

void changeNames(const NameChange& change)
{
    change.apply(disk->names);
    disk->changes.push_back(change);
}

void create(const QByteArray& name)
{
    if (disk->names.contains(name))
        return;
    changeNames({{}, name, disk->synced.size()});
    disk->synced.push_back({});
}

/// Calls `next`, the C library function, unless the call has to fail. Afterwards `done` applies the
/// effect of the call to the simulated disk.
template <typename Next, typename Done>
auto run(Call call, const char* function, const QByteArray& name, const Next& next,
         const Done& done)
{
    using Result = decltype(next());
    if (!disk || isOwnCall || name.isEmpty())
        return next();
    if (call == Call::Read)
        std::this_thread::sleep_for(disk->readTime);
    const std::lock_guard lock(mutex);
    if (fails(call, function, name))
        return Result(-1);
    const Result result = next();
    const int error = errno;
    if (result >= 0 && disk->fault != Fault::None)
        done(result);
    errno = error;
    return result;
}

template <typename Next>
auto run(Call call, const char* function, const QByteArray& name, const Next& next)
{
    return run(call, function, name, next, [](auto) {});
}

/// Returns the first content with random sectors of the second.
QByteArray mixed(QByteArray content, const QByteArray& other, std::mt19937& random)
{
    constexpr int Sector = 512;
    const int common = qMin(content.size(), other.size());
    for (int at = 0; at < common; at += Sector)
        if (const int length = qMin(Sector, common - at); random() % 2)
            content.replace(at, length, other.mid(at, length));
    return content;
}

template <typename Function>
Function* original(Function*, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}
} // namespace

FaultyDisk::FaultyDisk(const QString& folder, Fault fault, int call)
{
    auto state = std::make_unique<Disk>();
    state->folder = QFile::encodeName(QFileInfo(folder).canonicalFilePath());
    const bool canBeCut = fault != Fault::None;
    const QStringList names = canBeCut ? QDir(folder).entryList(QDir::Files) : QStringList();
    for (const QString& name : names) {
        state->names[QFile::encodeName(name)] = state->synced.size();
        state->synced.push_back(readFile(QDir(folder).filePath(name)));
    }
    state->syncedNames = state->names;
    state->fault = fault;
    state->call = call;
    disk = std::move(state);
}

FaultyDisk::~FaultyDisk()
{
    disk.reset();
}

QByteArray FaultyDisk::failedCall() const
{
    return disk->failedCall;
}

void FaultyDisk::slowDown(int milliseconds)
{
    disk->readTime = std::chrono::milliseconds(milliseconds);
}

void FaultyDisk::restart()
{
    Q_ASSERT(disk->fault != Fault::None);
    const auto before = std::exchange(disk, nullptr);
    static std::mt19937 random;
    const bool isTorn = before->fault == Fault::TornCut;
    const bool isLastNameStored = before->fault == Fault::NameCut;
    const QDir folder(QFile::decodeName(before->folder));
    for (auto name = before->names.begin(); name != before->names.end(); ++name) {
        const QString path = folder.filePath(QFile::decodeName(name.key()));
        QByteArray& synced = before->synced[name.value()];
        if (isTorn)
            synced = random() % 2 ? mixed(synced, readFile(path), random)
                                  : mixed(readFile(path), synced, random);
        QFile::remove(path);
    }
    Names names = before->syncedNames;
    for (const NameChange& change : before->changes)
        if (isTorn ? random() % 2 == 0 : isLastNameStored && &change == &before->changes.back())
            change.apply(names);
    for (auto name = names.begin(); name != names.end(); ++name)
        writeFile(folder.filePath(QFile::decodeName(name.key())), before->synced[name.value()]);
    disk = std::make_unique<Disk>(); // without a folder
    disk->folder = "/dev/null";
    disk->failedCall = before->failedCall;
}

} // namespace testsupport

// Qt and SQLite also use the following definitions, because the program exports them.
using namespace testsupport;

#pragma GCC visibility push(default)
extern "C" {

int open64(const char* path, int flags, ...)
{
    static const auto next = original(&open64, "open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const QByteArray name = flags & (O_CREAT | O_TRUNC) ? nameOf(QByteArray(path)) : QByteArray();
    return run(
        Call::Write, "create", name, [&] { return next(path, flags, mode); },
        [&](int) { create(name); });
}

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return open64(path, flags, mode);
}

ssize_t read(int file, void* bytes, size_t length)
{
    static const auto next = original(&read, "read");
    return run(Call::Read, "read", nameOf(file), [&] { return next(file, bytes, length); });
}

ssize_t pread64(int file, void* bytes, size_t length, off64_t offset)
{
    static const auto next = original(&pread64, "pread64");
    return run(Call::Read, "read", nameOf(file), [&] { return next(file, bytes, length, offset); });
}

ssize_t write(int file, const void* bytes, size_t length)
{
    static const auto next = original(&write, "write");
    return run(Call::Write, "write", nameOf(file), [&] { return next(file, bytes, length); });
}

ssize_t pwrite64(int file, const void* bytes, size_t length, off64_t offset)
{
    static const auto next = original(&pwrite64, "pwrite64");
    return run(Call::Write, "write", nameOf(file),
               [&] { return next(file, bytes, length, offset); });
}

int ftruncate64(int file, off64_t length) noexcept
{
    static const auto next = original(&ftruncate64, "ftruncate64");
    return run(Call::Other, "truncate", nameOf(file), [&] { return next(file, length); });
}

int fsync(int file)
{
    static const auto next = original(&fsync, "fsync");
    const QByteArray name = nameOf(file);
    // The tests would take ten times as long if the files were really synced.
    return run(
        Call::Other, "sync", name, [&] { return name.isEmpty() ? next(file) : 0; },
        [&](int) { sync(name); });
}

int fdatasync(int file)
{
    return fsync(file);
}

int unlink(const char* path) noexcept
{
    static const auto next = original(&unlink, "unlink");
    const QByteArray name = nameOf(QByteArray(path));
    return run(
        Call::Other, "remove", name, [&] { return next(path); },
        [&](int) {
            changeNames({name, {}, 0});
        });
}

int renameat2(int folder, const char* from, int newFolder, const char* to, unsigned flags) noexcept
{
    static const auto next = original(&renameat2, "renameat2");
    const QByteArray name = nameOf(QByteArray(from));
    return run(
        Call::Other, "rename", name, [&] { return next(folder, from, newFolder, to, flags); },
        [&](int) {
            changeNames({name, nameOf(QByteArray(to)), disk->names[name]});
        });
}

int rename(const char* from, const char* to) noexcept
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

} // extern "C"
#pragma GCC visibility pop
