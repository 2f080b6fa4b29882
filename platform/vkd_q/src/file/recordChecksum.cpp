#include "file/recordChecksum.h"

#include <QtEndian>

#include <sqlite3.h>

#define XXH_INLINE_ALL // a function call takes as long as hashing a short record
#include <xxhash.h>

#include <cstring>

namespace {
quint64 checksum(std::pair<int, int> pair, int position, const void* bytes, size_t length)
{
    // The keys and the position are mixed in arithmetically, which is faster than hashing them.
    constexpr quint64 Odd = 0x9E3779B97F4A7C15; // spreads small integers over all bits
    const quint64 keys = quint64(quint32(pair.first)) << 32 | quint32(pair.second);
    return XXH3_64bits_withSeed(bytes, length, keys ^ (quint32(position) * Odd));
}

/// The arguments of the SQL functions.
struct Stored
{
    explicit Stored(sqlite3_value** values)
        : pair(sqlite3_value_int(values[0]), sqlite3_value_int(values[1]))
        , position(sqlite3_value_int(values[2]))
        , bytes(sqlite3_value_blob(values[3]))
        , length(sqlite3_value_bytes(values[3]))
    {
    }

    std::pair<int, int> pair;
    int position;
    const void* bytes;
    int length;
};

void withChecksum(sqlite3_context* context, int, sqlite3_value** values)
{
    const Stored stored(values);
    auto result =
        static_cast<uchar*>(sqlite3_malloc64(sqlite3_uint64(stored.length) + ChecksumBytes));
    if (!result)
        return sqlite3_result_error_nomem(context);
    if (stored.length > 0)
        std::memcpy(result, stored.bytes, size_t(stored.length));
    writeChecksum(stored.pair, stored.position, result, stored.length);
    sqlite3_result_blob64(context, result, sqlite3_uint64(stored.length) + ChecksumBytes,
                          sqlite3_free);
}

void isWithChecksum(sqlite3_context* context, int, sqlite3_value** values)
{
    const Stored stored(values);
    sqlite3_result_int(
        context, hasChecksum(stored.pair, stored.position, stored.bytes, stored.length) ? 1 : 0);
}
} // namespace

bool hasChecksum(std::pair<int, int> pair, int position, const void* bytes, int length)
{
    const int own = length - ChecksumBytes;
    return own >= 0 && qFromLittleEndian<quint64>(static_cast<const uchar*>(bytes) + own) ==
                           checksum(pair, position, bytes, size_t(own));
}

void writeChecksum(std::pair<int, int> pair, int position, unsigned char* record, int length)
{
    qToLittleEndian(checksum(pair, position, record, size_t(length)), record + length);
}

int addChecksumFunctions(sqlite3* connection)
{
    constexpr int Arguments = 4;
    constexpr int Flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
    const int code = sqlite3_create_function(connection, "with_checksum", Arguments, Flags, nullptr,
                                             withChecksum, nullptr, nullptr);
    return code == SQLITE_OK ? sqlite3_create_function(connection, "has_checksum", Arguments, Flags,
                                                       nullptr, isWithChecksum, nullptr, nullptr)
                             : code;
}
