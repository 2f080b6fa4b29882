#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// A string and the positions of its lines. A line needs four bytes in addition to its text. The
/// class is implicitly shared. Even an empty text has one line.
class TextLines
{
public:
    explicit TextLines(const QString& text = QString());

    const QString& text() const { return m_text; }
    int count() const { return m_starts.size(); }
    /// Returns a line without its newline. The object must outlive the returned view.
    QStringView line(int number) const;
    /// These functions return the position of the first character of a line, or the position of its
    /// end.
    int start(int number) const { return m_starts[number]; }
    int end(int number) const;
    /// Returns the line that contains a character or a newline.
    int lineAt(int position) const;
    /// Returns the index of the line with the most characters.
    int longest() const { return m_longest; }

private:
    QString m_text;
    QVector<int> m_starts;
    int m_longest = 0;
};

} // namespace workbench
