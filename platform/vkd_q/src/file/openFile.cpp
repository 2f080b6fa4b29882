#include "file/openFile.h"

#include <QByteArray>

#include <sqlite3.h>

namespace {
constexpr qint64 PieceBytes = 1 << 20;

/// Returns null for an in-memory store.
sqlite3_file* descriptor(sqlite3* connection)
{
    sqlite3_file* file = nullptr;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    return file && file->pMethods ? file : nullptr;
}
} // namespace

bool readFile(sqlite3* connection, void* bytes, int length, qint64 offset)
{
    sqlite3_file* file = descriptor(connection);
    return file && file->pMethods->xRead(file, bytes, length, offset) == SQLITE_OK;
}

VkdZobStatus copyFile(sqlite3* connection, const VkdZobTake& take)
{
    sqlite3_file* file = descriptor(connection);
    sqlite3_int64 size = 0;
    if (!file || file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return VKD_ZOB_FAILED;
    QByteArray piece;
    for (qint64 offset = 0; offset < size; offset += piece.size()) {
        piece.resize(int(qMin(PieceBytes, size - offset)));
        if (!readFile(connection, piece.data(), piece.size(), offset))
            return VKD_ZOB_FAILED;
        if (!take(piece.constData(), piece.size()))
            return VKD_ZOB_CANCELLED;
    }
    return VKD_ZOB_OK;
}
