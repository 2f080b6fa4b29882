#include "exchange/separatedText.h"

#include <algorithm>
#include <iterator>

namespace plib {

namespace {
constexpr QLatin1Char Quote('"');

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r');
}

bool isSpace(QChar character)
{
    return character.isSpace();
}

/// Reads the cells of a table one by one.
class CellReader
{
public:
    CellReader(const QString& text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    {
    }

    bool atEnd() const { return m_place >= m_text.size(); }

    QStringList line()
    {
        QStringList cells{cell()};
        while (!atEnd() && m_text[m_place] == m_separator) {
            ++m_place;
            cells << cell();
        }
        if (!atEnd() && m_text[m_place] == QLatin1Char('\r'))
            ++m_place;
        if (!atEnd() && m_text[m_place] == QLatin1Char('\n'))
            ++m_place;
        return cells;
    }

private:
    QString cell()
    {
        QString quoted;
        if (!atEnd() && m_text[m_place] == Quote)
            quoted = quotedPart();
        const int begin = m_place;
        while (!atEnd() && m_text[m_place] != m_separator && !isLineEnd(m_text[m_place]))
            ++m_place;
        return quoted + m_text.mid(begin, m_place - begin);
    }

    QString quotedPart()
    {
        QString content;
        ++m_place; // the opening mark
        while (!atEnd()) {
            const bool isMark = m_text[m_place] == Quote;
            if (isMark)
                ++m_place;
            if (isMark && (atEnd() || m_text[m_place] != Quote))
                break;
            content += m_text[m_place++];
        }
        return content;
    }

    const QString& m_text;
    QChar m_separator;
    int m_place = 0;
};

QString quotedIfNecessary(QString cell, QChar separator)
{
    const bool isPlain = !cell.contains(separator) && !cell.contains(Quote) &&
                         std::none_of(cell.begin(), cell.end(), isLineEnd);
    return isPlain ? cell : Quote + cell.replace(Quote, QLatin1String("\"\"")) + Quote;
}
} // namespace

QChar separatorOf(const QString& text)
{
    const auto visible = std::find_if_not(text.begin(), text.end(), isSpace);
    const auto begin =
        std::find_if(std::make_reverse_iterator(visible), text.rend(), isLineEnd).base();
    const auto end = std::find_if(visible, text.end(), isLineEnd);
    for (char candidate : {'\t', ';', ','})
        if (std::find(begin, end, QLatin1Char(candidate)) != end)
            return QLatin1Char(candidate);
    return QLatin1Char('\t');
}

QVector<QStringList> readCells(const QString& text, QChar separator)
{
    QVector<QStringList> lines;
    CellReader reader(text, separator);
    while (!reader.atEnd())
        lines << reader.line();
    return lines;
}

QString lineOfCells(const QStringList& cells, QChar separator)
{
    QStringList quoted;
    for (const QString& cell : cells)
        quoted << quotedIfNecessary(cell, separator);
    return quoted.join(separator) + QLatin1Char('\n');
}

} // namespace plib
