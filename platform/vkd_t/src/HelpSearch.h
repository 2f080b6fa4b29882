#pragma once

#include <QStringList>
#include <QVector>

class HelpBook;

/// The searchable plain texts of a book's pages. They come from the parser that also displays the
/// pages, so that every match is found in the page as well. Uses no widgets.
class HelpSearch
{
public:
    HelpSearch() = default;
    explicit HelpSearch(const HelpBook& book);

    /// Returns the numbers of topics whose pages contain the text, case-insensitively.
    QVector<int> topicsWith(const QString& text) const;

private:
    QStringList m_texts;
};
