#pragma once

#include "GraphicalOutputRecord.h"

#include <QString>

#include <array>
#include <string>
#include <vector>

class QIODevice;

namespace plib {

/// Reads the lines of a catalogue one by one into one working record, whose fields are not reset in
/// between: a line without an English script takes that of the last line that had one. Columns that
/// stand as they stood in the line before are neither decoded nor looked up again.
class CatalogueParser
{
public:
    enum class Outcome { Comment, Blank, TooFewParts, NoGermanScript, NoEnglishScript, Accepted };

    static constexpr int MinimumParts = 14;
    static constexpr int UsedParts = 15;
    static constexpr int LineBuffer = 1024; ///< one byte of it is for the end of the text

    /// One line as QIODevice::readLine() gives it, with its line feed if it has one.
    Outcome parseLine(const char* bytes, int length);

    /// The working record; a catalogue record if the outcome was Accepted.
    const GraphicalOutputRecord& record() const { return m_record; }
    /// How many parts the line had, 0 for comments and blank lines.
    int partCount() const { return m_partCount; }

private:
    Outcome parseAscii(const char* bytes, int length);
    Outcome parseText(const QString& line);
    Outcome outcome() const;
    void storePart(int column, const QString& part);
    void storeCaption(const QString& part, int place, QString* caption, QString* identifier);
    void storeCaseWord(const QString& part);

    GraphicalOutputRecord m_record;
    // What each column was last stored from, blanks and all; empty if that was no plain ASCII. A
    // part is never empty, so an empty one fits nothing.
    std::array<std::string, UsedParts> m_bytes;
    int m_partCount = 0;
};

/// Reads lines of at most 1023 bytes until the device ends and appends the accepted records; the
/// rest of a longer line is a line of its own. Bad lines are skipped without a word.
void parseCatalogue(QIODevice& device, std::vector<GraphicalOutputRecord>& list);

} // namespace plib
