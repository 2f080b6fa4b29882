#pragma once

#include "HelpBook.h"

#include <QTextBrowser>

/// Shows the pages of a book with a history, searches the page and scales it. The colours come from
/// the palette.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent);

    const HelpBook& book() const { return m_book; }
    /// Returns the number of the current topic, -1 if there is none.
    int topic() const;
    /// Opens a topic of a book. The history is preserved for the same book in another language and
    /// cleared for another book.
    void open(const HelpBook& book, int number);
    void openTopic(int number);

    /// Selects the next match after the selected one, or the previous one before it, and wraps
    /// around at the end of the page. Returns false and changes nothing if there is no match.
    bool findNext(const QString& text, QTextDocument::FindFlags flags = {});
    /// Searches like findNext(), but from the start of the current match, which remains selected if
    /// it still matches the longer text.
    bool findWhileTyping(const QString& text);
    void unmark();

    /// Changes the font size by this number of points, within limits.
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
    QUrl m_shown; ///< needed because source() changes after sourceChanged()
    int m_zoom = 0;
    int m_wheel = 0; ///< the remainder of the wheel's rotation below one step
};
