#pragma once

#include "window/script/lineChanges.h"
#include "window/script/ScriptColours.h"
#include "window/script/textMoves.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>

namespace workbench {

/// Shows a script of any length. The user can select and copy parts of it. The lines of the last
/// change have a coloured background. Only visible lines are laid out and coloured, and a line
/// needs four bytes in addition to its text. Filling the document of a QPlainTextEdit would take
/// ten times as long as generating the script, and nine times as much memory as the text. Lines are
/// not wrapped, and the font must be a fixed-width font.
class ScriptView : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QString plainText READ plainText)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)

public:
    explicit ScriptView(QWidget* parent = nullptr);

    const TextLines& lines() const { return m_lines; }
    QString plainText() const { return m_lines.text(); }
    /// Replaces the text and marks the new lines. The view scrolls only if necessary to show the
    /// first new line.
    void setLines(const TextLines& lines, const QVector<LineChange>& changes);
    /// Returns the last changes.
    const QVector<LineChange>& changes() const { return m_changes; }

    QString placeholderText() const { return m_placeholder; }
    /// Sets the placeholder text, which is shown instead of an empty script.
    void setPlaceholderText(const QString& text);

    /// Returns the position of the cursor, which is one end of the selection.
    int cursorPosition() const { return m_cursor.position; }
    /// Returns the selected range, which may be empty.
    TextRange selection() const;
    QString selectedText() const;
    /// Selects the range from the anchor to the cursor, and scrolls to the cursor.
    void select(int anchor, int cursor);
    /// Returns the position of the character nearest to a point in viewport coordinates.
    int positionAt(const QPoint& point) const;
    /// Returns the rectangle of the cursor before a character, in viewport coordinates (pixels).
    QRect cursorRect(int position) const;

public Q_SLOTS:
    void copy() const;
    void selectAll();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    using Unit = TextRange (*)(const TextLines&, int position);

    int lineHeight() const { return fontMetrics().height(); }
    int visibleLines() const; ///< number of completely visible lines
    int lineNear(int y) const;
    QPoint placeOf(int line) const;
    void layOut(QTextLayout& layout, int line) const;
    void measure();
    void fitScrollBars();
    void scrollTo(int position);
    void showCursor();

    void paintPlaceholder(QPainter& painter) const;
    void paintLine(QPainter& painter, int line) const;
    bool isChanged(int line) const;

    void setCursor(const TextPlace& place, bool selects);
    void beginSelection(int position, Unit unit);
    void extendSelection(const QPoint& point);
    void dragSelection();

    TextLines m_lines;
    QVector<LineChange> m_changes;
    QString m_placeholder;
    ScriptColours m_colours;
    int m_textWidth = 0; // pixels

    TextPlace m_cursor;
    int m_anchor = 0;
    bool m_isCursorLit = false;
    QBasicTimer m_blinking;

    Unit m_unit = nullptr; // finds the unit to select; null unless the mouse is selecting
    TextRange m_first;     // unit at which the mouse selection began
    bool m_mayDrag = false;
    QPoint m_pressed;
    QElapsedTimer m_sinceDoubleClick;
    QBasicTimer m_scrolling; // runs while the mouse selects outside the viewport
};

} // namespace workbench
