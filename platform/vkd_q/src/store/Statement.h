#pragma once

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement that is kept for the life of its database and reset after each use, so that
/// it holds no lock of its own from then on. Used by RecordTable and ZobTransactions.
class Statement
{
public:
    Statement() = default;
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Prepares `sql` on the first call. All operations that give an int answer SQLite's code.
    int prepare(sqlite3* connection, const char* sql);
    /// Prepares it and binds the integers to its first parameters.
    int start(sqlite3* connection, const char* sql, int first, int second);
    int bind(int parameter, int value);
    int step();
    /// Steps once and resets, with the bytes as third parameter where the statement has one.
    int run();
    int run(const void* bytes, int length);
    int column(int index) const;
    const void* columnBytes(int index, int* length) const;
    void done();

private:
    sqlite3_stmt* m_statement = nullptr;
};
