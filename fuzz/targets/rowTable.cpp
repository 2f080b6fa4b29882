#include "FuzzTarget.h"

#include <exchange/rowRecords.h>
#include <exchange/rowTable.h>
#include <exchange/separatedText.h>

/// Each error message for a table must have one line. It must be possible to write the cells that
/// were read, and to read them back unchanged.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const QString text = fuzz::textOf(bytes, size);
    const plib::RowTable table = plib::readRowTable(text);
    for (const QString& fault : table.faults)
        fuzz::checkReason(fault);
    const QChar separator = plib::separatorOf(text);
    const QVector<QStringList> cells = plib::readCells(text, separator);
    QString written;
    for (const QStringList& line : cells)
        written += plib::lineOfCells(line, separator);
    FUZZ_CHECK(plib::readCells(written, separator) == cells);
    plib::rowsOfBytes(fuzz::bytesOf(bytes, size));
    return 0;
}
