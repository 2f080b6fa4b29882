#pragma once

#include "HelpBook.h"

#include <QTextBrowser>

/// Shows the pages of a book, with the way back through them, finds texts in the page and scales
/// it. Colours are those of the palette.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent);

    const HelpBook& book() const { return m_book; }
    /// The number of the topic shown, -1 if there is none.
    int topic() const;
    /// Opens a topic of a book. The same book in another language keeps the way back, another book
    /// begins a new one.
    void open(const HelpBook& book, int number);
    void openTopic(int number);

    /// Marks the next place with the text behind the marked one, or before it, and starts over at
    /// the end of the page. False, and no change, if the page does not have it.
    bool findNext(const QString& text, QTextDocument::FindFlags flags = {});
    /// As findNext(), but a marked place counts as well if it goes on to have the text.
    bool findWhileTyping(const QString& text);
    void unmark();

    /// Makes the text larger by points, or smaller; both within limits.
    void zoomBy(int points);
    void resetZoom();

    QVariant loadResource(int type, const QUrl& address) override;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void followLink(const QUrl& address);
    void readAgain();

    HelpBook m_book;
    QUrl m_shown; ///< source() is late: it changes after the signal sourceChanged()
    int m_zoom = 0;
    int m_wheel = 0; ///< what is left of a turn of the wheel that was no whole step
};
