#pragma once

#include <QStringList>
#include <QVector>

class HelpBook;

/// The plain texts of a book's pages for searching. They are made by the parser that shows the
/// pages, so that what is found here is found in the page as well. Knows no widgets.
class HelpSearch
{
public:
    HelpSearch() = default;
    explicit HelpSearch(const HelpBook& book);

    /// The numbers of the topics whose pages hold the text, without case.
    QVector<int> topicsWith(const QString& text) const;

private:
    QStringList m_texts;
};
