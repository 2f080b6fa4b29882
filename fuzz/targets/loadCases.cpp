#include "FuzzTarget.h"

#include "cli/CommandLine.h"
#include "cli/output/OutputTree.h"

/// The input is a file for --load-cases. The message for an invalid line must have one line; rows
/// that were read must be written and read back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const auto read = [](const QByteArray& text) {
        return workbench::readRows(fuzz::file("loadcases", text));
    };
    try {
        QString written;
        const auto rows = read(fuzz::bytesOf(bytes, size));
        for (const auto& row : rows)
            written += QStringLiteral("%1 %2 ").arg(row.kind).arg(row.number) + row.name +
                       QLatin1Char('\n');
        FUZZ_CHECK(read(written.toUtf8()) == rows);
    } catch (const workbench::CommandError& error) {
        fuzz::checkReason(error.text);
    }
    return 0;
}
