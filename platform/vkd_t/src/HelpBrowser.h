#pragma once

#include "HelpBook.h"

#include <QTextBrowser>

/// Displays the pages of a book with a history, searches the current page and scales it. The
/// colours come from the palette.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent);

    const HelpBook& book() const { return m_book; }
    /// Returns the index of the current topic, or -1 if there is none.
    int topic() const;
    /// Opens a topic of a book. The history is preserved if the book is the same book in another
    /// language, and cleared if it is a different book.
    void open(const HelpBook& book, int number);
    void openTopic(int number);

    /// Selects the next match after the selection, or the previous match before it, and wraps
    /// around at the end of the page. Returns false without any change if there is no match.
    bool findNext(const QString& text, QTextDocument::FindFlags flags = {});
    /// Searches like findNext(), but from the start of the current match, which remains selected if
    /// it also matches the longer text.
    bool findWhileTyping(const QString& text);
    void unmark();

    /// Changes the font size by the given number of points, within limits.
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
    QUrl m_shown; ///< needed because source() changes after sourceChanged() is emitted
    int m_zoom = 0;
    int m_wheel = 0; ///< remainder of the wheel rotation below one step
};
