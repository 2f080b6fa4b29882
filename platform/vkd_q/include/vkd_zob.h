#pragma once

#include "vkd_progress.h"
#include "vkd_q_export.h"
#include "vkd_status.h"

#include <functional>

/// The ZOB is the record store of a project. It contains ordered sequences of opaque records, keyed
/// by pairs of integers, in one file per project. An open project has a database index of 1 or
/// more; index 0 is a scratch store in memory, which exists until the process ends.
///
/// A failed operation leaves the stored records unchanged, unless only its final disk access
/// failed. It writes one English log line in the category vkd.zob. The returned status or
/// vkd_zob_last_failure() contains the same reason in the desktop language. An operation that fails
/// only because of an earlier failure, such as a write after a failed lock, returns the same status
/// without a log line. All functions must be called in the GUI thread.
///
/// To read or change a project as a whole, use ZobSnapshot or ZobTransaction.
using cd_error_t = int;

/// Result codes of the operations. Codes above VKD_ZOB_CUT mean that the operation had no effect.
enum VkdZobStatus : cd_error_t {
    VKD_ZOB_OK = 0,
    VKD_ZOB_CUT = 1,        ///< delivered, but truncated to the size of the buffer
    VKD_ZOB_END = 2,        ///< no record at this position: end of the sequence
    VKD_ZOB_NO_KEY = 3,     ///< no record is stored for the key pair
    VKD_ZOB_NOT_OPEN = 4,   ///< no project is open with this index
    VKD_ZOB_NO_FILE = 5,    ///< the file does not exist or cannot be opened or created
    VKD_ZOB_NO_PROJECT = 6, ///< the file is not a project file
    VKD_ZOB_NEWER = 7,      ///< the file was written by a newer version of the program
    VKD_ZOB_DAMAGED = 8,    ///< the file is damaged, or the checksum of a record is wrong
    VKD_ZOB_READ_ONLY = 9,  ///< the file or its folder is not writable
    VKD_ZOB_FULL = 10,      ///< disk full, quota exceeded or file too large
    VKD_ZOB_LOCKED = 11,    ///< another program kept the project locked for too long
    VKD_ZOB_FAILED = 12,    ///< the system failed to read or write
    VKD_ZOB_BAD_CALL = 13,  ///< an argument is out of range
    VKD_ZOB_CANCELLED = 14, ///< the caller cancelled; no log line is written
    VKD_ZOB_MOVED = 15      ///< the file was deleted, moved or replaced while it was open
};

/// Receives the next bytes of a file; returns false to cancel.
using VkdZobTake = std::function<bool(const void* bytes, int length)>;

/// Opens the project file at `path` (UTF-8) and sets its database index. Opening an intact project
/// does not modify the file. After a crash, the interrupted write is rolled back first, which
/// cannot be cancelled. A file without any write permission is opened read-only, even for a
/// privileged user. The whole file is checked, at roughly 100 MB per second, and `goOn` is called
/// during the check.
VKD_Q_EXPORT VkdStatus vkd_zob_open(const char* path, int* index, const VkdGoOn& goOn = VkdGoOn());

/// Creates and opens an empty project file. If the file exists, it is not changed, and the call
/// fails with VKD_ZOB_NO_FILE.
VKD_Q_EXPORT VkdStatus vkd_zob_create(const char* path, int* index);

/// Closes the project. Key pairs that are still locked are released without storing the change.
/// Returns the first failure to store changes when key pairs were released, because the release
/// itself does not return a result.
VKD_Q_EXPORT VkdStatus vkd_zob_close(int index);

/// Returns the last failure of an operation on an open project, or OK if none has failed. Use it
/// after operations that return only a code or nothing. No log line is written.
VKD_Q_EXPORT VkdStatus vkd_zob_last_failure(int index);

/// Reads the record at `position` (0 is the first). `*length` is the size of the buffer on entry
/// and the number of delivered bytes on return. From the read at position 0 until the end of the
/// sequence or vkd_zob_free_ex(), all reads see the same state of the project, even if other
/// programs try to write.
VKD_Q_EXPORT cd_error_t vkd_zob_get(int index, int key1, int key2, void* record, int* length,
                                    int position);

/// Writes a record: `position` 0 writes the first record, or removes all records if `*length` is 0
/// as well; `position` 1 appends. Outside a change, the record is stored immediately; within a
/// change, it is stored when the change ends. The call fails if the change has failed or if the
/// record is larger than 256 MB. Within a change, a later call or the end of the change may return
/// the failure of this call, because records are buffered.
VKD_Q_EXPORT cd_error_t vkd_zob_put(int index, int key1, int key2, const void* record,
                                    const int* length, int position);

/// Locks the key pair for writing. The file has a single lock: all pairs that are locked at the
/// same time belong to one change, which is stored or rolled back when the last pair is released.
/// If another program holds the lock, the call waits no longer than the deadline in setting 201. If
/// the first pair cannot be locked, the change has failed. Further locks and all writes fail with
/// the same status until all pairs, including the refused ones, are released.
VKD_Q_EXPORT cd_error_t vkd_zob_lock_ex(int index, int key1, int key2);

/// Releases the key pair after reading or writing. Releasing the last pair stores all records that
/// were written since the first pair was locked. If any operation has failed since then, even a
/// read, nothing is stored.
VKD_Q_EXPORT void vkd_zob_free_ex(int index, int key1, int key2);

/// Returns the result of the last change to the project: OK if the records were stored or no pair
/// has been locked yet, otherwise the reason why locking or storing failed. Call it after releasing
/// the pairs, because the release does not return a result.
VKD_Q_EXPORT VkdStatus vkd_zob_change_status(int index);

/// With `mode` 1, finds the first used key pair that is not less than the pair passed in `*key1`,
/// `*key2`, and stores it there. If there is none, sets both keys to -1. For example, if (35, 0)
/// yields a pair with the first key 35, records with this first key exist. Any other mode is an
/// error and sets both keys to -1.
VKD_Q_EXPORT void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode);

/// Sets `*number` to 0 if the project has not been changed since it was opened, except through this
/// index. The number changes with each change by another program or through another index. The call
/// does not wait, does not block other programs and does not modify the file. It returns
/// VKD_ZOB_LOCKED while another program is storing, and VKD_ZOB_MOVED if the path no longer leads
/// to the open file, although that file can still be read and copied. No log line is written.
VKD_Q_EXPORT cd_error_t vkd_zob_outside_changes(int index, int* number);

/// Passes the bytes of the project file, as of the last stored change, to `take` in chunks. No
/// other program can store changes during the call. Returns VKD_ZOB_CANCELLED if `take` returns
/// false.
VKD_Q_EXPORT VkdStatus vkd_zob_copy(int index, const VkdZobTake& take);
