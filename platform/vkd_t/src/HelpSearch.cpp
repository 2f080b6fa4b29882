#include "HelpSearch.h"

#include "HelpBook.h"

#include <QTextDocumentFragment>

HelpSearch::HelpSearch(const HelpBook& book)
{
    for (int topic = 0; topic < book.topics().size(); ++topic)
        m_texts << QTextDocumentFragment::fromHtml(book.page(topic)).toPlainText();
}

QVector<int> HelpSearch::topicsWith(const QString& text) const
{
    QVector<int> found;
    for (int topic = 0; topic < m_texts.size(); ++topic)
        if (!text.isEmpty() && m_texts[topic].contains(text, Qt::CaseInsensitive))
            found << topic;
    return found;
}
