#pragma once

/// Returns the name of the VFS through which SQLite must access project files. It is SQLite's own
/// one, except that it remembers errors of the system, and that a read error is reported as such:
/// SQLite would report EIO as a damaged database.
const char* zobVfs();

/// Returns the errno of the last failed access to a file through zobVfs() since the last call, 0 if
/// none failed. SQLite itself does not return it for all accesses, for example not for a journal.
int takeSystemError();
