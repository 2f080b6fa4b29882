#include "history/TextChange.h"

#include <QDataStream>

#include <algorithm>

namespace plib {

TextChange textChange(const QString& before, const QString& after)
{
    const int common = std::min(before.size(), after.size());
    const auto head = std::mismatch(before.begin(), before.begin() + common, after.begin());
    const int first = int(head.first - before.begin());
    int tail = 0;
    while (first + tail < common &&
           before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {first, before.mid(first, before.size() - first - tail),
            after.mid(first, after.size() - first - tail)};
}

QString redone(QString text, const TextChange& change)
{
    return text.replace(change.first, change.before.size(), change.after);
}

QString undone(QString text, const TextChange& change)
{
    return text.replace(change.first, change.after.size(), change.before);
}

QDataStream& operator<<(QDataStream& stream, const TextChange& change)
{
    return stream << qint32(change.first) << change.before << change.after;
}

QDataStream& operator>>(QDataStream& stream, TextChange& change)
{
    qint32 first = 0;
    stream >> first >> change.before >> change.after;
    change.first = first;
    return stream;
}

} // namespace plib
