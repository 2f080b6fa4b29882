#pragma once

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement that exists as long as its database connection. It is reset after each use
/// so that it does not hold a lock. RecordTable and ZobTransactions use it.
class Statement
{
public:
    Statement() = default;
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Prepares `sql` on the first call. If this fails, step() and run() return the result code.
    void prepare(sqlite3* connection, const char* sql);
    /// Prepares `sql` and binds the integers to its first parameters.
    void start(sqlite3* connection, const char* sql, int first, int second);
    void bind(int parameter, int value);
    /// Returns an SQLite result code, like the other operations that return an int.
    int step();
    /// Executes the statement once and resets it. The bytes are bound to the third parameter.
    int run();
    int run(const void* bytes, int length);
    int column(int index) const;
    const void* columnBytes(int index, int* length) const;
    void done();

private:
    sqlite3_stmt* m_statement = nullptr;
    int m_prepared = 0; // result code of prepare()
};
