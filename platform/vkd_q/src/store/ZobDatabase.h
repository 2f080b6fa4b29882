#pragma once

#include "Statement.h"
#include "vkd_zob.h"

#include <QString>

#include <map>
#include <memory>
#include <set>
#include <utility>

/// One open store: an SQLite file with a rollback journal, or a store in memory. Records lie in one
/// table by key pair and position. It knows transactions and states of reading, and maps SQLite's
/// codes to those of the ZOB; the list of open stores is kept by vkd_zob.cpp.
class ZobDatabase
{
public:
    /// Each of the three gives null and a status, after its log line, if there is no usable store.
    static std::unique_ptr<ZobDatabase> open(const QString& path, cd_error_t* status,
                                             const VkdGoOn& goOn);
    static std::unique_ptr<ZobDatabase> create(const QString& path, cd_error_t* status);
    static std::unique_ptr<ZobDatabase> inMemory(cd_error_t* status);
    ~ZobDatabase();

    cd_error_t get(int key1, int key2, void* record, int* length, int position);
    cd_error_t put(int key1, int key2, const void* record, int length, int position);
    cd_error_t take(int key1, int key2);
    void release(int key1, int key2);
    void drop() { spoilChange(VKD_ZOB_CANCELLED); }
    /// How the last change ended.
    cd_error_t endOfChange() const { return m_endOfChange; }
    /// Moves the pair to the first one in use from there on, or to -1, -1.
    void firstPairFrom(int* key1, int* key2);
    /// Drops what is still taken; gives the first failure of a release.
    cd_error_t finish();

private:
    using KeyPair = std::pair<int, int>;

    explicit ZobDatabase(const QString& path);
    cd_error_t connect(int flags);
    cd_error_t checkFile(const VkdGoOn& goOn);
    cd_error_t makeSchema();
    cd_error_t execute(const char* sql, const char* action);
    cd_error_t number(const char* sql, int* value);
    cd_error_t checkSoundness(const VkdGoOn& goOn);
    cd_error_t quickCheck();
    cd_error_t checkTable();
    cd_error_t fail(int sqliteCode, const char* action);
    cd_error_t failInside(int sqliteCode, const char* action);
    cd_error_t spoilChange(cd_error_t status);
    int stepTo(KeyPair pair, int position);
    void stopWalk();
    cd_error_t deliver(void* record, int* length) const;
    cd_error_t positionAfterEnd(int key1, int key2);
    int clear(KeyPair pair);
    int writeFirst(KeyPair pair, const void* record, int length);
    int append(KeyPair pair, const void* record, int length);
    int appendInside(KeyPair pair, const void* record, int length);
    cd_error_t beginChange();
    void beginPass(KeyPair pair);
    void endPass(KeyPair pair);
    void endPasses();
    void endReading();
    void storeOrDrop();
    void rememberRelease(cd_error_t status);

    QString m_path;
    struct Closer
    {
        void operator()(sqlite3* connection) const;
    };
    std::unique_ptr<sqlite3, Closer> m_connection; // outlives the statements below
    Statement m_get, m_any, m_next, m_first, m_append, m_appendAt, m_end, m_clear;
    static constexpr int NoPosition = -2; // is followed by no position
    KeyPair m_walkPair{};
    int m_walkPosition = NoPosition; // of the record that m_get has delivered
    std::set<KeyPair> m_passes;      // being read from one state of the file
    std::set<KeyPair> m_taken;
    std::map<KeyPair, int> m_ends; // of sequences appended to since the first pair was taken
    bool m_isChanging = false;     // false as well if the first pair was refused
    cd_error_t m_changeStatus = VKD_ZOB_OK; // first failure since the first pair was taken
    cd_error_t m_endOfChange = VKD_ZOB_OK;
    cd_error_t m_releaseStatus = VKD_ZOB_OK; // the first failure of all
};
