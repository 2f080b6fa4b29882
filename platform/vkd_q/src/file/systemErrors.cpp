#include "file/systemErrors.h"

#include <sqlite3.h>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <mutex>
#include <unistd.h>

namespace {
constexpr char Name[] = "vkd";

/// The I/O methods of an open file, which call the original methods.
struct Methods : sqlite3_io_methods
{
    const sqlite3_io_methods* original;
};

std::atomic<int> lastError{0}; // atomic, because a file is checked in a separate thread
sqlite3_vfs* original = nullptr;
sqlite3_vfs layer;

int remembered(int code)
{
    // SQLite does not regard the first two codes as errors.
    const bool isFailure =
        code != SQLITE_IOERR_SHORT_READ && code != SQLITE_IOERR_DELETE_NOENT &&
        ((code & 0xff) == SQLITE_IOERR || code == SQLITE_FULL || code == SQLITE_CANTOPEN);
    if (isFailure)
        lastError = errno;
    return code == SQLITE_IOERR_CORRUPTFS ? SQLITE_IOERR_READ : code;
}

template <auto Method, typename... Arguments>
int access(sqlite3_file* file, Arguments... arguments)
{
    const auto* methods = static_cast<const Methods*>(file->pMethods);
    return remembered((methods->original->*Method)(file, arguments...));
}

/// SQLite uses different I/O methods for journals and for databases. The layers are never
/// destroyed, because the host's static objects may close documents when the process exits.
const sqlite3_io_methods* layerOver(const sqlite3_io_methods* methods)
{
    using Layers = std::map<const sqlite3_io_methods*, Methods>;
    static Layers& layers = *new Layers;
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    const auto [found, isNew] = layers.try_emplace(methods, Methods{*methods, methods});
    Methods& above = found->second;
    if (isNew) {
        above.xRead = access<&sqlite3_io_methods::xRead>;
        above.xWrite = access<&sqlite3_io_methods::xWrite>;
        above.xTruncate = access<&sqlite3_io_methods::xTruncate>;
        above.xSync = access<&sqlite3_io_methods::xSync>;
        above.xFileSize = access<&sqlite3_io_methods::xFileSize>;
    }
    return &above;
}

bool canCreate(const char* path)
{
    const int file = ::open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    return file >= 0 && close(file) == 0 && unlink(path) == 0;
}

int open(sqlite3_vfs*, const char* path, sqlite3_file* file, int flags, int* usedFlags)
{
    int code = original->xOpen(original, path, file, flags, usedFlags);
    // SQLite hides the reason why it cannot create a file, because it then tries to open the file
    // for reading.
    if (code == SQLITE_CANTOPEN && path && (flags & SQLITE_OPEN_CREATE) && canCreate(path))
        code = original->xOpen(original, path, file, flags, usedFlags);
    if (code == SQLITE_OK)
        file->pMethods = layerOver(file->pMethods);
    return remembered(code);
}

int remove(sqlite3_vfs*, const char* path, int syncsFolder)
{
    return remembered(original->xDelete(original, path, syncsFolder));
}

/// Never unregistered, because this library stays loaded until the process ends.
bool registerLayer()
{
    sqlite3_initialize();
    original = sqlite3_vfs_find(nullptr);
    layer = *original;
    layer.zName = Name;
    layer.xOpen = open;
    layer.xDelete = remove;
    return sqlite3_vfs_register(&layer, 0) == SQLITE_OK;
}
} // namespace

const char* zobVfs()
{
    static const bool isRegistered = registerLayer();
    return isRegistered ? Name : nullptr; // null selects the default VFS
}

int takeSystemError()
{
    return lastError.exchange(0);
}
