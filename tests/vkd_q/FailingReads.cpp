#include "FailingReads.h"

#include <sqlite3.h>

#include <cerrno>
#include <chrono>
#include <thread>

namespace {
int badOffset = 0;
int badReads = 0;
bool failed = false;
std::chrono::milliseconds duration{0};

sqlite3_vfs* original = nullptr;
sqlite3_vfs layer;
const sqlite3_io_methods* originalMethods = nullptr;
sqlite3_io_methods methods;

int read(sqlite3_file* file, void* bytes, int length, sqlite3_int64 offset)
{
    std::this_thread::sleep_for(duration);
    const bool isBad = offset <= badOffset && badOffset < offset + length;
    if (!isBad || badReads == 0)
        return originalMethods->xRead(file, bytes, length, offset);
    --badReads;
    failed = true;
    errno = EIO;
    return SQLITE_IOERR_READ;
}

int control(sqlite3_file* file, int operation, void* argument)
{
    if (operation != SQLITE_FCNTL_LAST_ERRNO || !failed)
        return originalMethods->xFileControl(file, operation, argument);
    *static_cast<int*>(argument) = EIO;
    return SQLITE_OK;
}

int open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    const int code = original->xOpen(original, name, file, flags, outFlags);
    if (code != SQLITE_OK || !(flags & SQLITE_OPEN_MAIN_DB))
        return code;
    originalMethods = file->pMethods;
    methods = *originalMethods;
    methods.xRead = read;
    methods.xFileControl = control;
    methods.xFetch = nullptr;
    methods.iVersion = 2; // without memory mapping, which does not read
    file->pMethods = &methods;
    return code;
}
} // namespace

FailingReads::FailingReads()
{
    original = sqlite3_vfs_find(nullptr);
    layer = *original;
    layer.zName = "failing-reads";
    layer.xOpen = open;
    sqlite3_vfs_register(&layer, 1);
}

FailingReads::~FailingReads()
{
    slowDown(0);
    sqlite3_vfs_unregister(&layer);
    sqlite3_vfs_register(original, 1);
}

void FailingReads::failAt(int offset, int times)
{
    badOffset = offset;
    badReads = times;
    failed = false;
}

void FailingReads::slowDown(int milliseconds)
{
    duration = std::chrono::milliseconds(milliseconds);
}
