#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// A text and the positions of its lines. Apart from the text, a line takes four bytes. Copies
/// share their data. Even an empty text has one line.
class TextLines
{
public:
    explicit TextLines(const QString& text = QString());

    const QString& text() const { return m_text; }
    int count() const { return m_starts.size(); }
    /// Returns a line without its line end; the text must outlive it.
    QStringView line(int number) const;
    /// Return the positions of the first character of a line and of its end.
    int start(int number) const { return m_starts[number]; }
    int end(int number) const;
    /// Returns the line of a character or a line end.
    int lineAt(int position) const;
    /// Returns the number of the line with the most characters.
    int longest() const { return m_longest; }

private:
    QString m_text;
    QVector<int> m_starts;
    int m_longest = 0;
};

} // namespace workbench
