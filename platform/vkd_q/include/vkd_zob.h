#pragma once

#include "vkd_progress.h"
#include "vkd_q_export.h"
#include "vkd_status.h"

/// The ZOB, the record store of a project: ordered sequences of opaque records, each sequence under
/// a pair of keys, in one file for each project. An open project has a database index of 1 or more;
/// index 0 is a scratch store in memory that lives as long as the process.
///
/// Every operation that fails leaves what was stored as it was and writes one log line of the
/// category vkd.zob, in English. The reason in the status that it answers, or else in
/// vkd_zob_last_failure(), says the same in the desktop's language. What fails only because
/// something before it failed, a put after a failed take above all, repeats the status without a
/// line. All of it is for one thread, the GUI thread.
///
/// ZobSnapshot reads a project as a whole, and ZobTransaction changes it as a whole.
using cd_error_t = int;

/// What the operations answer. Anything above VKD_ZOB_CUT means that nothing was delivered or done.
enum VkdZobStatus : cd_error_t {
    VKD_ZOB_OK = 0,
    VKD_ZOB_CUT = 1,        ///< delivered, but cut to the size of the buffer
    VKD_ZOB_END = 2,        ///< no record at this position: the sequence is at its end
    VKD_ZOB_NO_KEY = 3,     ///< nothing is stored under the key pair
    VKD_ZOB_NOT_OPEN = 4,   ///< the index belongs to no open project
    VKD_ZOB_NO_FILE = 5,    ///< the file is not there, or cannot be opened or made
    VKD_ZOB_NO_PROJECT = 6, ///< the file is no project file
    VKD_ZOB_NEWER = 7,      ///< the file was written by a newer version
    VKD_ZOB_DAMAGED = 8,    ///< the file is damaged
    VKD_ZOB_READ_ONLY = 9,  ///< the file, or the folder it lies in, cannot be written
    VKD_ZOB_FULL = 10,      ///< no room left for the file, or the disk does not take it
    VKD_ZOB_LOCKED = 11,    ///< another program held the project for too long
    VKD_ZOB_FAILED = 12,    ///< the system failed to read or write
    VKD_ZOB_BAD_CALL = 13,  ///< an argument is out of range
    VKD_ZOB_CANCELLED = 14  ///< the caller did not want it any more; without a log line
};

/// Opens the project file at `path` (UTF-8) and gives its database index. Looking at a project that
/// was left in order changes no byte of it; after a crash the interrupted write is undone first.
/// A file without any write permission is opened for reading, also for a privileged user. The file
/// is checked throughout, some 100 MB in a second, and `goOn` asked meanwhile.
VKD_Q_EXPORT VkdStatus vkd_zob_open(const char* path, int* index, const VkdGoOn& goOn = VkdGoOn());

/// Makes a new, empty project file and opens it. A file that is there already is left alone and the
/// call fails with VKD_ZOB_NO_FILE.
VKD_Q_EXPORT VkdStatus vkd_zob_create(const char* path, int* index);

/// Closes the project; key pairs still taken are given back without their changes. Because
/// releasing a key pair has no result, this call answers the first release that could not store its
/// changes.
VKD_Q_EXPORT VkdStatus vkd_zob_close(int index);

/// The last failure of an operation on an open project, for the operations that answer a code only
/// or nothing; OK if none failed yet.
VKD_Q_EXPORT VkdStatus vkd_zob_last_failure(int index);

/// Delivers the record at `position` (0 is the first). `*length` is the size of the buffer on entry
/// and the number of bytes delivered on return. From position 0 until the end of the sequence, or
/// until vkd_zob_free_ex(), one state of the project is read, whatever other programs write.
VKD_Q_EXPORT cd_error_t vkd_zob_get(int index, int key1, int key2, void* record, int* length,
                                    int position);

/// With `position` 0 writes the first record, and with `*length` 0 as well empties the key pair;
/// with `position` 1 appends. Outside of a change the record is stored at once. Inside, it counts
/// from the last vkd_zob_free_ex() on. In a change that failed the call is refused.
VKD_Q_EXPORT cd_error_t vkd_zob_put(int index, int key1, int key2, const void* record,
                                    const int* length, int position);

/// Takes the key pair for writing. The file has one lock: all pairs taken together are one change,
/// which is stored or dropped with the release of the last one. Another program that holds a pair
/// is waited for, at most as long as setting 201 says. A change whose first pair is refused has
/// failed: further pairs and all puts are refused with the same status until each pair, the refused
/// ones too, is released.
VKD_Q_EXPORT cd_error_t vkd_zob_lock_ex(int index, int key1, int key2);

/// Releases the key pair after reading or writing; what was put since it was taken is now stored.
/// If anything failed meanwhile, a read too, none of it counts.
VKD_Q_EXPORT void vkd_zob_free_ex(int index, int key1, int key2);

/// How the last change of the project ended, because releasing it has no result: 0 if what was put
/// is stored or nothing was taken yet, otherwise why taking or storing failed.
VKD_Q_EXPORT VkdStatus vkd_zob_change_status(int index);

/// With `mode` 1 moves `*key1`, `*key2` to the first key pair in use that is not below them, both
/// -1 if there is none: a key pair (35, 0) that still begins with 35 tells that something is stored
/// under 35. No other mode is known; it answers -1.
VKD_Q_EXPORT void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode);
