// The part of the view that computes the positions of the lines.

#include "window/script/ScriptGutter.h"
#include "window/script/ScriptView.h"

#include <QFontMetricsF>
#include <QScrollBar>
#include <QtMath>

namespace workbench {

void ScriptView::setWrapped(bool isWrapped)
{
    m_isWrapped = isWrapped;
    const int line = verticalScrollBar()->value();
    fitScrollBars();
    verticalScrollBar()->setValue(line);
    updateAll();
}

/// Because the font has a fixed width, most lines are known to fit without being laid out.
int ScriptView::heightOf(int line) const
{
    constexpr int WidestInCells = 2; // width of East Asian characters
    const int width = viewport()->width() - 2 * Margin;
    const int length = m_lines.end(line) - m_lines.start(line);
    if (!m_isWrapped || length * WidestInCells * fontMetrics().averageCharWidth() <= width)
        return lineHeight();
    QTextLayout layout;
    layOut(layout, line);
    return layout.lineCount() * lineHeight();
}

QVector<ScriptView::LinePlace> ScriptView::visiblePlaces() const
{
    QVector<LinePlace> places;
    int top = Margin;
    for (int line = verticalScrollBar()->value();
         line < m_lines.count() && top < viewport()->height(); ++line) {
        places.append({line, top, heightOf(line)});
        top += places.last().height;
    }
    return places;
}

int ScriptView::visibleLines() const
{
    int count = 0;
    if (m_isWrapped)
        for (const LinePlace& place : visiblePlaces())
            count += place.top + place.height <= viewport()->height() - Margin ? 1 : 0;
    else
        count = (viewport()->height() - 2 * Margin) / lineHeight();
    return qMax(1, count);
}

int ScriptView::lineNear(int y) const
{
    int line = verticalScrollBar()->value();
    if (y < Margin || !m_isWrapped)
        line += qFloor(double(y - Margin) / lineHeight());
    else
        for (const LinePlace& place : visiblePlaces())
            line = place.top <= y ? place.line : line;
    return qBound(0, line, m_lines.count() - 1);
}

/// If lines are wrapped, the positions of lines outside the viewport are estimates.
QPoint ScriptView::placeOf(int line) const
{
    const int first = verticalScrollBar()->value();
    int top = Margin + (line - first) * lineHeight();
    if (m_isWrapped && line > first)
        for (const LinePlace& place : visiblePlaces())
            top += place.line < line ? place.height - lineHeight() : 0;
    return {Margin - horizontalScrollBar()->value(), top};
}

int ScriptView::positionAt(const QPoint& point) const
{
    const int line = lineNear(point.y());
    const QPoint place = placeOf(line);
    QTextLayout layout;
    layOut(layout, line);
    const int row = qBound(0, (point.y() - place.y()) / lineHeight(), layout.lineCount() - 1);
    return m_lines.start(line) + layout.lineAt(row).xToCursor(point.x() - place.x());
}

QRect ScriptView::cursorRect(int position) const
{
    const int line = m_lines.lineAt(position);
    QTextLayout layout;
    layOut(layout, line);
    const QTextLine row = layout.lineForTextPosition(position - m_lines.start(line));
    const QPoint inLine(int(row.cursorToX(position - m_lines.start(line))),
                        row.lineNumber() * lineHeight());
    return {placeOf(line) + inLine, QSize(CursorWidth, lineHeight())};
}

void ScriptView::layOut(QTextLayout& layout, int line, const Formats& formats) const
{
    layout.setText(m_lines.line(line).toString());
    layout.setFont(font());
    layout.setFormats(formats);
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(m_isWrapped ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                   : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        if (m_isWrapped)
            row.setLineWidth(qMax(lineHeight(), viewport()->width() - 2 * Margin));
        row.setPosition(QPointF(0, row.lineNumber() * lineHeight()));
        if (!m_isWrapped)
            break;
    }
    layout.endLayout();
}

/// Measures the text. In a fixed-width font, the line with the most characters is the widest.
void ScriptView::measure()
{
    const QString longest = m_lines.line(m_lines.longest()).toString();
    m_textWidth = qCeil(QFontMetricsF(font()).horizontalAdvance(longest)) + CursorWidth;
    setViewportMargins(m_gutter->neededWidth(), 0, 0, 0);
    fitScrollBars();
    updateAll();
}

void ScriptView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    const QRect inner = viewport()->geometry();
    const int width = m_gutter->neededWidth();
    m_gutter->setGeometry(inner.left() - width, inner.top(), width, inner.height());
    fitScrollBars();
}

void ScriptView::fitScrollBars()
{
    QScrollBar* down = verticalScrollBar();
    down->setPageStep(visibleLines());
    down->setRange(0, lastTop());
    QScrollBar* across = horizontalScrollBar();
    across->setSingleStep(fontMetrics().averageCharWidth());
    across->setPageStep(viewport()->width());
    across->setRange(0, m_isWrapped ? 0 : qMax(0, m_textWidth + 2 * Margin - viewport()->width()));
}

/// Returns the first line that can be at the top while the last line is completely visible.
int ScriptView::lastTop() const
{
    int line = m_lines.count() - 1;
    int room = viewport()->height() - 2 * Margin - heightOf(line);
    while (line > 0 && (room -= heightOf(line - 1)) >= 0)
        --line;
    return line;
}

/// Scrolls no further than necessary.
void ScriptView::scrollTo(int position)
{
    QScrollBar* down = verticalScrollBar();
    const int line = m_lines.lineAt(position);
    int first = line; // the first visible line, with `line` fully in view
    int room = viewport()->height() - 2 * Margin - heightOf(line);
    while (first > down->value() && (room -= heightOf(first - 1)) >= 0)
        --first;
    down->setValue(qMin(line, qMax(first, down->value())));
    QScrollBar* across = horizontalScrollBar();
    const int x = cursorRect(position).x();
    const int right = viewport()->width() - Margin - CursorWidth;
    if (x < Margin)
        across->setValue(across->value() + x - Margin);
    else if (x > right)
        across->setValue(across->value() + x - right);
}

void ScriptView::reveal(int firstLine, int lineCount)
{
    const int top = verticalScrollBar()->value();
    if (lineCount > 0 && (firstLine + lineCount <= top || firstLine >= top + visibleLines()))
        verticalScrollBar()->setValue(firstLine);
}

} // namespace workbench
