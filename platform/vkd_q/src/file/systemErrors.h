#pragma once

/// Returns the name of the VFS through which SQLite must access project files. It is the default
/// VFS of SQLite, except that it stores system errors and reports read errors as such. SQLite would
/// report EIO as a damaged database.
const char* zobVfs();

/// Returns the errno of the last file access through zobVfs() that has failed since the previous
/// call, or 0 if none has failed. SQLite itself does not report it for all accesses, for example
/// not for a journal.
int takeSystemError();
