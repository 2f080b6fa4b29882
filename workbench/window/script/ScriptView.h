#pragma once

#include "window/script/ScriptColours.h"
#include "window/script/ScriptMarks.h"
#include "window/script/textMoves.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>

namespace workbench {

class ScriptGutter;

/// Shows a script of any length, with line numbers. The user can select and copy parts of it. The
/// lines of the last change have a coloured background. Only visible lines are laid out and
/// coloured, and a line needs four bytes in addition to its text. Filling the document of a
/// QPlainTextEdit would take ten times as long as generating the script, and need nine times as
/// much memory as the text. The font must be a fixed-width font. The vertical scroll bar counts
/// lines, so wrapped lines need not be laid out before they are visible.
class ScriptView : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QString plainText READ plainText)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)

public:
    /// A line and its position in the viewport, in pixels.
    struct LinePlace
    {
        int line;
        int top;
        int height;
    };

    explicit ScriptView(QWidget* parent = nullptr);

    const TextLines& lines() const { return m_lines; }
    QString plainText() const { return m_lines.text(); }
    /// Replaces the text, marks the changes and removes all other marks. The view scrolls only if
    /// this is necessary to show the first change.
    void setLines(const TextLines& lines, const QVector<LineChange>& changes);

    const ScriptMarks& marks() const { return m_marks; }
    /// Returns the last changes.
    const QVector<LineChange>& changes() const { return m_marks.changes; }
    /// These functions mark the words that were found, the lines of the current plot, and the
    /// findings of a check.
    void setHits(const QVector<int>& hits, int length);
    void setPlot(int firstLine, int lineCount);
    void setFindings(const QVector<ScriptFinding>& findings);
    const ScriptColours& colours() const { return m_colours; }
    /// Sets the grammar whose keywords are highlighted. The grammar must outlive the view.
    void setGrammar(const ScriptGrammar* grammar);

    QString placeholderText() const { return m_placeholder; }
    /// Sets the placeholder text, which is shown instead of an empty script.
    void setPlaceholderText(const QString& text);

    bool isWrapped() const { return m_isWrapped; }

    /// Returns the position of the cursor, which is one end of the selection.
    int cursorPosition() const { return m_cursor.position; }
    /// Returns the selected range, which may be empty.
    TextRange selection() const;
    QString selectedText() const;
    /// Selects the range from the anchor to the cursor, and scrolls to the cursor.
    void select(int anchor, int cursor);
    /// Selects a line and emits lineChosen().
    void chooseLine(int line);
    /// Scrolls to the first of the lines if none of them is visible.
    void reveal(int firstLine, int lineCount);
    /// Returns the position of the character nearest to a point in viewport coordinates.
    int positionAt(const QPoint& point) const;
    /// Returns the rectangle of the cursor before a character, in viewport coordinates (pixels).
    QRect cursorRect(int position) const;
    /// Returns the line nearest to a vertical position in the viewport.
    int lineNear(int y) const;
    /// Returns the positions of the lines that are at least partly visible.
    QVector<LinePlace> visiblePlaces() const;

Q_SIGNALS:
    /// Emitted when the user clicks a line or presses Return in it.
    void lineChosen(int line);

public Q_SLOTS:
    void copy() const;
    void selectAll();
    /// Sets whether lines are wrapped to the width of the view.
    void setWrapped(bool isWrapped);

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
    static constexpr int Margin = 4;      ///< pixels
    static constexpr int CursorWidth = 1; ///< pixels

    using Unit = TextRange (*)(const TextLines&, int position);
    using Formats = QVector<QTextLayout::FormatRange>;

    // The geometry of the lines.
    int lineHeight() const { return fontMetrics().height(); }
    int heightOf(int line) const;
    int visibleLines() const; ///< number of completely visible lines
    QPoint placeOf(int line) const;
    void layOut(QTextLayout& layout, int line, const Formats& formats = {}) const;
    void measure();
    void fitScrollBars();
    int lastTop() const;
    void scrollTo(int position);

    void paintPlaceholder(QPainter& painter) const;
    void paintLine(QPainter& painter, const LinePlace& place) const;
    Formats formatsOf(int line) const;
    Formats selectedIn(int line) const;
    void updateAll();

    void showCursor();
    void setCursor(const TextPlace& place, bool selects);
    void beginSelection(int position, Unit unit);
    void extendSelection(const QPoint& point);
    void dragSelection();

    ScriptGutter* m_gutter;
    TextLines m_lines;
    ScriptMarks m_marks;
    QString m_placeholder;
    ScriptColours m_colours;
    const ScriptGrammar* m_grammar = nullptr;
    bool m_isWrapped = false;
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
