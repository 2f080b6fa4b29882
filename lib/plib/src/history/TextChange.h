#pragma once

#include <QString>

class QDataStream;

namespace plib {

/// The difference between two strings: the part that differs, before and after the change. The
/// parts of both strings around it are equal and not stored, so that a small change to a long
/// string needs little memory.
struct TextChange
{
    int first = 0;
    QString before;
    QString after;

    bool isEmpty() const { return before.isEmpty() && after.isEmpty(); }
};

TextChange textChange(const QString& before, const QString& after);

/// redone() converts the string before the change into the string after it; undone() does the
/// opposite.
QString redone(QString text, const TextChange& change);
QString undone(QString text, const TextChange& change);

QDataStream& operator<<(QDataStream& stream, const TextChange& change);
QDataStream& operator>>(QDataStream& stream, TextChange& change);

} // namespace plib
