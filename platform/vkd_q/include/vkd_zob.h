#pragma once

#include "vkd_progress.h"
#include "vkd_q_export.h"
#include "vkd_status.h"

#include <functional>

/// The ZOB is the record store of a project: ordered sequences of opaque records under pairs of
/// keys, in one file per project. An open project has a database index of 1 or more; index 0 is a
/// scratch store in memory that lives as long as the process.
///
/// A failed operation leaves the stored records unchanged, unless only its last access to the disk
/// failed, and writes one log line of the category vkd.zob in English. The same reason in the
/// desktop's language is in the returned status or in vkd_zob_last_failure(). An operation that
/// fails only because of an earlier failure, such as a put after a failed take, repeats the status
/// without a log line. All functions must be called in one thread, the GUI thread.
///
/// ZobSnapshot reads a project as a whole, and ZobTransaction changes it as a whole.
using cd_error_t = int;

/// Results of the operations. Codes above VKD_ZOB_CUT mean that nothing was delivered or done.
enum VkdZobStatus : cd_error_t {
    VKD_ZOB_OK = 0,
    VKD_ZOB_CUT = 1,        ///< delivered, but cut to the size of the buffer
    VKD_ZOB_END = 2,        ///< no record at this position: end of the sequence
    VKD_ZOB_NO_KEY = 3,     ///< nothing is stored under the key pair
    VKD_ZOB_NOT_OPEN = 4,   ///< no project is open with this index
    VKD_ZOB_NO_FILE = 5,    ///< the file does not exist or cannot be opened or created
    VKD_ZOB_NO_PROJECT = 6, ///< the file is not a project file
    VKD_ZOB_NEWER = 7,      ///< the file was written by a newer version
    VKD_ZOB_DAMAGED = 8,    ///< the file is damaged, or the checksum of a record is wrong
    VKD_ZOB_READ_ONLY = 9,  ///< the file or its folder is not writable
    VKD_ZOB_FULL = 10,      ///< the disk is full or refuses the data
    VKD_ZOB_LOCKED = 11,    ///< another program locked the project for too long
    VKD_ZOB_FAILED = 12,    ///< the system failed to read or write
    VKD_ZOB_BAD_CALL = 13,  ///< an argument is out of range
    VKD_ZOB_CANCELLED = 14, ///< the caller cancelled; no log line is written
    VKD_ZOB_MOVED = 15      ///< the file was deleted, moved or replaced while it was open
};

/// Receives the next bytes of a file; returns false to cancel.
using VkdZobTake = std::function<bool(const void* bytes, int length)>;

/// Opens the project file at `path` (UTF-8) and sets its database index. Opening an intact project
/// does not change any byte of it; after a crash, the interrupted write is rolled back first. A
/// file without any write permission is opened read-only, even for a privileged user. The whole
/// file is checked, at some 100 MB per second, and `goOn` is called meanwhile. The rollback cannot
/// be cancelled.
VKD_Q_EXPORT VkdStatus vkd_zob_open(const char* path, int* index, const VkdGoOn& goOn = VkdGoOn());

/// Creates and opens an empty project file. If the file exists, it is not changed, and the call
/// fails with VKD_ZOB_NO_FILE.
VKD_Q_EXPORT VkdStatus vkd_zob_create(const char* path, int* index);

/// Closes the project and releases key pairs that are still taken without storing their changes.
/// Returns the first failure to store changes at a release, because releasing a key pair has no
/// result itself.
VKD_Q_EXPORT VkdStatus vkd_zob_close(int index);

/// Returns the last failure of an operation on an open project, for operations that return only a
/// code or nothing; OK if none failed. No log line is written.
VKD_Q_EXPORT VkdStatus vkd_zob_last_failure(int index);

/// Reads the record at `position` (0 is the first). `*length` is the size of the buffer on entry
/// and the number of delivered bytes on return. From position 0 to the end of the sequence or to
/// vkd_zob_free_ex(), all reads see the same state of the project, even if other programs want to
/// write.
VKD_Q_EXPORT cd_error_t vkd_zob_get(int index, int key1, int key2, void* record, int* length,
                                    int position);

/// Writes a record: `position` 0 writes the first record, or removes all records if `*length` is 0
/// as well; `position` 1 appends. Outside a change the record is stored at once, within a change
/// when the change ends. A failed change refuses the call, and so does a record of more than 256
/// MB.
VKD_Q_EXPORT cd_error_t vkd_zob_put(int index, int key1, int key2, const void* record,
                                    const int* length, int position);

/// Takes the key pair for writing. The file has a single lock: all pairs that are taken together
/// are one change, which is stored or rolled back when the last one is released. If another program
/// has taken a pair, the call waits, at most as long as setting 201 says. If the first pair of a
/// change is refused, the change has failed: further pairs and all puts are refused with the same
/// status until all pairs, including the refused ones, are released.
VKD_Q_EXPORT cd_error_t vkd_zob_lock_ex(int index, int key1, int key2);

/// Releases the key pair after reading or writing. The release of the last pair stores all records
/// that were put since the first one was taken. If any operation failed meanwhile, even a read,
/// nothing is stored.
VKD_Q_EXPORT void vkd_zob_free_ex(int index, int key1, int key2);

/// Returns how the last change of the project ended, because releasing has no result: OK if the
/// records are stored or no pair was taken yet, otherwise why taking or storing failed.
VKD_Q_EXPORT VkdStatus vkd_zob_change_status(int index);

/// With `mode` 1, sets `*key1`, `*key2` to the first used key pair that is not less than the given
/// one, or to -1, -1 if there is none. For example, a result with the first key 35 for (35, 0)
/// means that records exist under 35. Other modes are invalid and give -1.
VKD_Q_EXPORT void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode);

/// Sets `*number` to 0 if the project was not changed since it was opened, except by this index.
/// The number changes with each change by another program or another index. The call does not wait,
/// does not make other programs wait and does not change the file. It returns VKD_ZOB_LOCKED while
/// another program is storing, and VKD_ZOB_MOVED if the path no longer leads to the open file,
/// which can still be read and copied. No log line is written.
VKD_Q_EXPORT cd_error_t vkd_zob_outside_changes(int index, int* number);

/// Passes the bytes of the project file to `take`, piece by piece, as of the last stored change. No
/// other program can store meanwhile. Returns VKD_ZOB_CANCELLED if `take` returns false.
VKD_Q_EXPORT VkdStatus vkd_zob_copy(int index, const VkdZobTake& take);
