#include "window/script/textMoves.h"

#include <QTextBoundaryFinder>

namespace workbench {

namespace {
/// Returns a boundary finder for the line that contains the position, placed at the position.
QTextBoundaryFinder finderAt(const TextLines& lines, int position,
                             QTextBoundaryFinder::BoundaryType type)
{
    const int number = lines.lineAt(position);
    const QStringView line = lines.line(number);
    QTextBoundaryFinder finder(type, line.data(), int(line.size()));
    finder.setPosition(position - lines.start(number));
    return finder;
}

int nextCharacter(const TextLines& lines, int position)
{
    const int line = lines.lineAt(position);
    if (position == lines.end(line))
        return qMin(position + 1, lines.text().size());
    return lines.start(line) +
           finderAt(lines, position, QTextBoundaryFinder::Grapheme).toNextBoundary();
}

int previousCharacter(const TextLines& lines, int position)
{
    const int line = lines.lineAt(position);
    if (position == lines.start(line))
        return qMax(position - 1, 0);
    return lines.start(line) +
           finderAt(lines, position, QTextBoundaryFinder::Grapheme).toPreviousBoundary();
}

bool beginsWord(const TextLines& lines, int position)
{
    const int line = lines.lineAt(position);
    const auto isSpace = [&lines](int at) { return lines.text().at(at).isSpace(); };
    if (position == lines.end(line))
        return position == lines.text().size();
    const auto finder = finderAt(lines, position, QTextBoundaryFinder::Word);
    return position == lines.start(line) || (finder.isAtBoundary() && !isSpace(position));
}

/// Moves by at least one step, up to the next beginning of a word or a line.
int movedToWord(const TextLines& lines, int position, int (*step)(const TextLines&, int))
{
    int at = step(lines, position);
    while (at > 0 && !beginsWord(lines, at))
        at = step(lines, at);
    return at;
}

TextPlace movedByLines(const TextLines& lines, const TextPlace& from, int by)
{
    const int line = qBound(0, lines.lineAt(from.position) + by, lines.count() - 1);
    int position = qMin(lines.start(line) + from.column, lines.end(line));
    if (position < lines.end(line) && lines.text().at(position).isLowSurrogate())
        --position;
    return {position, from.column};
}
} // namespace

TextPlace placeAt(const TextLines& lines, int position)
{
    return {position, position - lines.start(lines.lineAt(position))};
}

TextPlace moved(const TextLines& lines, const TextPlace& from, TextMove move, int page)
{
    const int position = from.position;
    const int line = lines.lineAt(position);
    switch (move) {
    case TextMove::PreviousCharacter: return placeAt(lines, previousCharacter(lines, position));
    case TextMove::NextCharacter: return placeAt(lines, nextCharacter(lines, position));
    case TextMove::PreviousWord:
        return placeAt(lines, movedToWord(lines, position, previousCharacter));
    case TextMove::NextWord: return placeAt(lines, movedToWord(lines, position, nextCharacter));
    case TextMove::LineStart: return placeAt(lines, lines.start(line));
    case TextMove::LineEnd: return placeAt(lines, lines.end(line));
    case TextMove::PreviousLine: return movedByLines(lines, from, -1);
    case TextMove::NextLine: return movedByLines(lines, from, 1);
    case TextMove::PreviousPage: return movedByLines(lines, from, -page);
    case TextMove::NextPage: return movedByLines(lines, from, page);
    case TextMove::Start: return placeAt(lines, 0);
    case TextMove::End: return placeAt(lines, lines.text().size());
    }
    return from;
}

TextRange wordAt(const TextLines& lines, int position)
{
    auto finder = finderAt(lines, position, QTextBoundaryFinder::Word);
    const int start = lines.start(lines.lineAt(position));
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    const int first = finder.position();
    const int last = finder.toNextBoundary();
    return {start + first, start + (last < 0 ? first : last)};
}

TextRange lineAt(const TextLines& lines, int position)
{
    const int line = lines.lineAt(position);
    return {lines.start(line), qMin(lines.end(line) + 1, int(lines.text().size()))};
}

} // namespace workbench
