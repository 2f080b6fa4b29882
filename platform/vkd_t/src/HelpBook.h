#pragma once

#include <vkd_language.h>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVector>

/// A help book in one language: the folder `help/<book>/<language>` on the search path with an
/// index and one page for each topic. The addresses of pages and pictures do not contain the
/// language, so that the browser's history survives a change of the language. Uses no widgets.
class HelpBook
{
public:
    struct Topic
    {
        QString name;
        QString title;
    };

    HelpBook() = default;
    /// Reads the index in a language, or in the other one if it is missing. Without an index there
    /// are no topics; topics without a readable page are skipped. The name is case-insensitive.
    HelpBook(const QString& name, vkd::Language language);

    const QString& name() const { return m_name; }
    const QVector<Topic>& topics() const { return m_topics; }
    /// Returns the number of a topic with this case-insensitive name or page address, or -1.
    int find(const QString& name) const;
    int find(const QUrl& address) const;

    QUrl address(int topic) const;
    QString page(int topic) const;
    /// Returns a file of the book: the one for the language, or else the one for all languages,
    /// such as a picture without texts. Null if there is none.
    QByteArray file(const QUrl& address) const;

private:
    void readIndex();
    QByteArray read(const QString& fileName) const;

    QString m_name;
    QString m_folder;
    QVector<Topic> m_topics;
};
