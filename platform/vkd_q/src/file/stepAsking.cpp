#include "file/stepAsking.h"

#include <sqlite3.h>

#include <chrono>
#include <future>

/// The statement runs in a separate thread, because SQLite calls its progress handler only between
/// the instructions of a statement, and a single instruction checks all pages.
int stepAsking(sqlite3_stmt* statement, const VkdGoOn& goOn)
{
    constexpr std::chrono::milliseconds BetweenQuestions(20);
    if (!goOn)
        return sqlite3_step(statement);
    bool goesOn = goOn(0);
    if (!goesOn)
        return SQLITE_INTERRUPT;
    auto stepping = std::async(std::launch::async, sqlite3_step, statement);
    while (stepping.wait_for(BetweenQuestions) != std::future_status::ready) {
        goesOn = goesOn && goOn(0);
        if (!goesOn)
            sqlite3_interrupt(sqlite3_db_handle(statement));
    }
    const int code = stepping.get();
    return goesOn ? code : SQLITE_INTERRUPT;
}
