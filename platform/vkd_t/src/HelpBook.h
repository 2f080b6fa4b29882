#pragma once

#include <vkd_language.h>

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVector>

/// A help book in one language: the folder `help/<book>/<language>` in the search path with an
/// index and one page for each topic. The URLs of pages and images do not contain the language, so
/// that the browser's history remains valid after a change to another language. The class does not
/// use widgets.
class HelpBook
{
public:
    struct Topic
    {
        QString name;
        QString title;
    };

    HelpBook() = default;
    /// Reads the index in a language, or in the other language if the index is missing. If there is
    /// no index, the book has no topics. Topics without a readable page are skipped. The name is
    /// case-insensitive.
    HelpBook(const QString& name, vkd::Language language);

    const QString& name() const { return m_name; }
    const QVector<Topic>& topics() const { return m_topics; }
    /// Returns the index of the topic with this name or page address, or -1. The comparison is
    /// case-insensitive.
    int find(const QString& name) const;
    int find(const QUrl& address) const;

    QUrl address(int topic) const;
    QString page(int topic) const;
    /// Returns the contents of a file of the book: the file for the current language or, if there
    /// is none, the file for all languages, such as an image without text. Returns null if neither
    /// exists.
    QByteArray file(const QUrl& address) const;

private:
    void readIndex();
    QByteArray read(const QString& fileName) const;

    QString m_name;
    QString m_folder;
    QVector<Topic> m_topics;
};
