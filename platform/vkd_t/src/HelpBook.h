#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVector>

/// A book of the help in one language: the folder `help/<book>/<language>` on the search path with
/// its index and, for each topic, a page. Pages and pictures have addresses without the language,
/// so that a way back through pages survives a change of the language. Knows no widgets.
class HelpBook
{
public:
    struct Topic
    {
        QString name;
        QString title;
    };

    HelpBook() = default;
    /// Reads the index for a language, 0 German or 1 English, or else for the other one. Without
    /// any there are no topics, and a topic without a page that can be read is none. The name is
    /// compared without case.
    HelpBook(const QString& name, int language);

    const QString& name() const { return m_name; }
    const QVector<Topic>& topics() const { return m_topics; }
    /// The number of a topic by its name, without case, or by the address of its page; else -1.
    int find(const QString& name) const;
    int find(const QUrl& address) const;

    QUrl address(int topic) const;
    QString page(int topic) const;
    /// A file of the book: that of the language, or else one for all languages, as a picture
    /// without texts is. Null if there is none.
    QByteArray file(const QUrl& address) const;

private:
    void readIndex();
    QByteArray read(const QString& fileName) const;

    QString m_name;
    QString m_folder;
    QVector<Topic> m_topics;
};
