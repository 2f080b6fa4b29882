#include "catalogue/CatalogueParser.h"

#include "catalogue/captionText.h"
#include "catalogue/CatalogueLines.h"

#include <vkd_lib_text.h>

#include <QIODevice>
#include <QStringBuilder>

#include <algorithm>
#include <cstring>

namespace plib {

namespace {
constexpr int FirstCaption = 3; // columns of the captions
constexpr int LastCaption = 5;
constexpr int GermanScript = 13;

bool isAscii(const char* bytes, int length)
{
    quint64 all = 0;
    int i = 0;
    for (; i + 8 <= length; i += 8) {
        quint64 eight;
        std::memcpy(&eight, bytes + i, 8);
        all |= eight;
    }
    for (; i < length; ++i)
        all |= quint64(static_cast<unsigned char>(bytes[i]));
    return !(all & Q_UINT64_C(0x8080808080808080));
}

/// Returns whether the first part equals `known`. This is faster than searching for the end of the
/// part.
bool beginsWithPart(const char* begin, const char* end, const std::string& known)
{
    const auto length = size_t(end - begin);
    return !known.empty() && known.size() <= length &&
           (known.size() == length || begin[known.size()] == '|') &&
           std::memcmp(begin, known.data(), known.size()) == 0;
}

const char* barAfter(const char* begin, const char* end)
{
    const void* found = std::memchr(begin, '|', size_t(end - begin));
    return found ? static_cast<const char*>(found) : end;
}

/// Equivalent to QChar::isSpace() for ASCII characters.
bool isSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

QLatin1String trimmed(QLatin1String text)
{
    const char* begin = text.begin();
    const char* end = text.end();
    while (begin < end && isSpace(*begin))
        ++begin;
    while (begin < end && isSpace(end[-1]))
        --end;
    return QLatin1String(begin, int(end - begin));
}

int ctrlOf(const QString& word)
{
    static const struct
    {
        const char* word;
        int ctrl;
    } words[] = {{"last", 1}, {"sngl", 0}, {"nonl", 0},          {"supp", 0},   {"eige", 0},
                 {"zrt1", 0}, {"zrt2", 0}, {"desi", CtrlDesign}, {"beam", -10}, {"dsln", -10}};
    for (const auto& known : words)
        if (word == QLatin1String(known.word))
            return known.ctrl;
    return CtrlStandsAlone;
}

int rowClassOf(const QString& suffix)
{
    if (suffix == QLatin1String("l"))
        return 1;
    if (suffix == QLatin1String("c"))
        return 2;
    return suffix == QLatin1String("e") ? 3 : 0;
}
} // namespace

/// The English script remains in the working record, because the next line may inherit it.
GraphicalOutputRecord CatalogueParser::takeRecord()
{
    QString title = std::move(m_record.title3);
    QString identifier = std::move(m_record.id3);
    QString german = std::move(m_record.scriptGerman);
    m_bytes[LastCaption].clear(); // so that the next line sets the columns again
    m_bytes[GermanScript].clear();
    GraphicalOutputRecord record = m_record;
    record.title3 = std::move(title);
    record.id3 = std::move(identifier);
    record.scriptGerman = std::move(german);
    return record;
}

CatalogueParser::Outcome CatalogueParser::parseLine(const char* bytes, int length)
{
    m_partCount = 0;
    return isAscii(bytes, length) ? parseAscii(bytes, length)
                                  : parseText(QString::fromUtf8(bytes, length));
}

/// Does the same as parseText() for a pure ASCII line, in which each byte is a character. Most
/// lines are pure ASCII, and splitting bytes is much faster.
CatalogueParser::Outcome CatalogueParser::parseAscii(const char* bytes, int length)
{
    const char* const end = bytes + length;
    if (length >= 2 && bytes[0] == '/' && bytes[1] == '/')
        return Outcome::Comment;
    if (std::all_of(bytes, end, isSpace))
        return Outcome::Blank;
    std::array<QLatin1String, UsedParts> changed; // null for columns that are unchanged
    for (const char* begin = bytes; begin < end;) {
        const bool isUsed = m_partCount < UsedParts;
        const std::string& known = m_bytes[size_t(isUsed ? m_partCount : 0)];
        const bool isKnown = isUsed && beginsWithPart(begin, end, known);
        const char* bar = isKnown ? begin + known.size() : barAfter(begin, end);
        if (bar > begin) {
            if (isUsed && !isKnown)
                changed[size_t(m_partCount)] = QLatin1String(begin, int(bar - begin));
            ++m_partCount;
        }
        begin = bar + 1;
    }
    if (m_partCount < MinimumParts)
        return Outcome::TooFewParts;
    for (int i = 0; i < UsedParts; ++i) {
        const QLatin1String part = changed[size_t(i)];
        if (part.isNull())
            continue;
        m_bytes[size_t(i)].assign(part.data(), size_t(part.size()));
        storeAscii(i, trimmed(part));
    }
    return outcome();
}

CatalogueParser::Outcome CatalogueParser::parseText(const QString& line)
{
    if (line.startsWith(QLatin1String("//")))
        return Outcome::Comment;
    if (line.trimmed().isEmpty())
        return Outcome::Blank;
    const auto parts = QStringView(line).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    m_partCount = parts.size();
    if (m_partCount < MinimumParts)
        return Outcome::TooFewParts;
    for (int i = 0; i < std::min(m_partCount, UsedParts); ++i) {
        m_bytes[size_t(i)].clear();
        storePart(i, parts[i].trimmed().toString());
    }
    return outcome();
}

CatalogueParser::Outcome CatalogueParser::outcome() const
{
    if (m_record.scriptGerman.isEmpty())
        return Outcome::NoGermanScript;
    return m_record.scriptEnglish.isEmpty() ? Outcome::NoEnglishScript : Outcome::Accepted;
}

void CatalogueParser::storeAscii(int column, QLatin1String part)
{
    if (column < FirstCaption || column > LastCaption)
        return storePart(column, part);
    m_caption.assign(part.begin(), part.end());
    storeCaptionPart(column, m_caption);
}

void CatalogueParser::storeCaptionPart(int column, QStringView part)
{
    GraphicalOutputRecord& r = m_record;
    switch (column) {
    case 3: storeCaption(part, 1, &r.title1, &r.id1); break;
    case 4: storeCaption(part, 2, &r.title2, &r.id2); break;
    default: storeCaption(part, 3, &r.title3, &r.id3); break;
    }
}

void CatalogueParser::storePart(int column, const QString& part)
{
    GraphicalOutputRecord& r = m_record;
    switch (column) {
    case 0: r.prog1 = part.toInt(); break;
    case 1: r.prog2 = part.toInt(); break;
    case 2: r.prog3 = part.toInt(); break;
    case FirstCaption:
    case 4:
    case LastCaption: storeCaptionPart(column, part); break;
    case 6: r.contentTag = part; break;
    case 7: r.number7 = part.toInt(); break;
    case 8: storeCaseWord(part); break;
    case 9: r.preselect = part.toInt(); break;
    case 10: r.viewKind = part.toInt(); break;
    case 11: r.text11 = part; break;
    case 12: r.systemMask = part.toInt(); break;
    case GermanScript: r.scriptGerman = part; break;
    case 14: r.scriptEnglish = part; break;
    default: break;
    }
}

void CatalogueParser::storeCaption(QStringView part, int place, QString* caption,
                                   QString* identifier)
{
    const QLatin1String plainIdentifiers[] = {QLatin1String("    001"), QLatin1String("    002"),
                                              QLatin1String("    003")};
    if (!isKeyText(part)) {
        *identifier = plainIdentifiers[place - 1];
        *caption = part.toString();
        return;
    }
    const int prefixLength = hasQualifier(part) ? 7 : 4;
    *identifier = QLatin1String("   ", 7 - prefixLength) % part.left(prefixLength);
    *caption = captionOr(part, part.mid(prefixLength).trimmed());
}

void CatalogueParser::storeCaseWord(const QString& part)
{
    m_record.caseWord = part;
    const QString lower = part.toLower();
    const int dash = lower.indexOf(QLatin1Char('-'));
    m_record.rowClass = dash < 0 ? 0 : rowClassOf(lower.mid(dash + 1));
    m_record.ctrl = ctrlOf(lower.left(dash)); // the whole word if there is no dash
    const int designMark = m_record.ctrl == CtrlDesign ? 3 : 2;
    m_record.rowMark = m_record.rowClass == 3 ? designMark : 1;
}

void parseCatalogue(QIODevice& device, std::vector<GraphicalOutputRecord>& list)
{
    vkd_lib_opentext("grav");
    constexpr int ShortLine = 128; // in bytes; longer lines leave some capacity unused
    list.reserve(list.size() + size_t(device.bytesAvailable() / ShortLine));
    CatalogueParser parser;
    CatalogueLines lines(device);
    while (lines.next())
        if (parser.parseLine(lines.bytes(), lines.length()) == CatalogueParser::Outcome::Accepted)
            list.push_back(parser.takeRecord());
}

} // namespace plib
