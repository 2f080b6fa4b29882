#pragma once

#include <QString>

namespace plib {

/// The difference between two texts as a value: the part that differs, before and after the change.
/// The texts before and after this part are equal, so that a small change to a long text needs
/// little memory.
struct TextChange
{
    int first = 0;
    QString before;
    QString after;

    bool isEmpty() const { return before.isEmpty() && after.isEmpty(); }
};

TextChange textChange(const QString& before, const QString& after);

/// Return the text after the change, or the text before it.
QString redone(QString text, const TextChange& change);
QString undone(QString text, const TextChange& change);

} // namespace plib
