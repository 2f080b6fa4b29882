#pragma once

#include "catalogue/GraphicalOutputRecord.h"

#include <QString>

#include <array>
#include <string>
#include <vector>

class QIODevice;

namespace plib {

/// Parses the lines of a catalogue one by one into a single working record. The fields of the
/// record are not reset between lines: a line without an English script inherits the script of the
/// last line that had one. A column with the same bytes as in the previous line is neither decoded
/// nor looked up again, because consecutive lines differ in only a few columns.
class CatalogueParser
{
public:
    enum class Outcome { Comment, Blank, TooFewParts, NoGermanScript, NoEnglishScript, Accepted };

    static constexpr int MinimumParts = 14;
    static constexpr int UsedParts = 15;

    /// Parses one line, including its newline if there is one.
    Outcome parseLine(const char* bytes, int length);

    /// Returns the working record. The record is valid if the outcome of the last line was
    /// Accepted.
    const GraphicalOutputRecord& record() const { return m_record; }
    /// Returns the working record. Strings that differ in almost every line are moved instead of
    /// copied. Therefore, record() is invalid until the next line has been parsed.
    GraphicalOutputRecord takeRecord();
    /// Returns the number of parts in the line, or 0 for comments and blank lines.
    int partCount() const { return m_partCount; }

private:
    Outcome parseAscii(const char* bytes, int length);
    Outcome parseText(const QString& line);
    Outcome outcome() const;
    void storeAscii(int column, QLatin1String part);
    void storePart(int column, const QString& part);
    void storeCaptionPart(int column, QStringView part);
    static void storeCaption(QStringView part, int place, QString* caption, QString* identifier);
    void storeCaseWord(const QString& part);

    GraphicalOutputRecord m_record;
    // The bytes of each stored column, including spaces; empty if the column was not pure ASCII.
    // Parts are never empty, so an empty string does not match any part.
    std::array<std::string, UsedParts> m_bytes;
    std::u16string m_caption; // decoded; reused, because most lines have a new caption
    int m_partCount = 0;
};

/// Reads all lines of the device and appends the accepted records (see CatalogueLines). Invalid
/// lines are silently skipped; lintCatalogue() reports them.
void parseCatalogue(QIODevice& device, std::vector<GraphicalOutputRecord>& list);

} // namespace plib
