#pragma once

#include <QStringList>
#include <QVector>

class HelpBook;

/// The searchable plain text of each page of a book. The text is extracted by the parser that also
/// displays the pages, so that every match is also found in the page. The class does not use
/// widgets.
class HelpSearch
{
public:
    HelpSearch() = default;
    explicit HelpSearch(const HelpBook& book);

    /// Returns the indexes of the topics whose pages contain the text. The search is
    /// case-insensitive.
    QVector<int> topicsWith(const QString& text) const;

private:
    QStringList m_texts;
};
