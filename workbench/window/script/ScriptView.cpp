// The part of the view that shows the script; scriptViewInput.cpp handles keyboard and mouse.

#include "window/script/ScriptView.h"

#include "window/script/ScriptViewAccess.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QPainter>
#include <QScrollBar>
#include <QtMath>

#include <algorithm>

namespace workbench {

namespace {
constexpr int Margin = 4; // pixels
constexpr int CursorWidth = 1;
} // namespace

ScriptView::ScriptView(QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_colours(palette())
{
    setFocusPolicy(Qt::WheelFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    ScriptViewAccess::install();
    measure();
}

void ScriptView::setLines(const TextLines& lines, const QVector<LineChange>& changes)
{
    const TextLines before = m_lines;
    const int place = verticalScrollBar()->value();
    m_lines = lines;
    m_changes = changes;
    m_unit = nullptr;
    measure();
    verticalScrollBar()->setValue(place);
    const auto come = std::find_if(changes.begin(), changes.end(),
                                   [](const LineChange& change) { return change.come > 0; });
    const int first = come != changes.end() ? lines.start(come->after) : 0;
    m_cursor = placeAt(lines, first);
    m_anchor = first;
    if (come != changes.end())
        scrollTo(first);
    viewport()->update();
    ScriptViewAccess::tellText(this, before, changes);
}

void ScriptView::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    viewport()->update();
}

TextRange ScriptView::selection() const
{
    return {qMin(m_anchor, m_cursor.position), qMax(m_anchor, m_cursor.position)};
}

QString ScriptView::selectedText() const
{
    const TextRange range = selection();
    return m_lines.text().mid(range.start, range.end - range.start);
}

void ScriptView::select(int anchor, int cursor)
{
    const int size = m_lines.text().size();
    m_anchor = qBound(0, anchor, size);
    setCursor(placeAt(m_lines, qBound(0, cursor, size)), true);
}

void ScriptView::setCursor(const TextPlace& place, bool selects)
{
    m_cursor = place;
    if (!selects)
        m_anchor = place.position;
    scrollTo(place.position);
    showCursor();
    viewport()->update();
    ScriptViewAccess::tellSelection(this);
}

int ScriptView::positionAt(const QPoint& point) const
{
    const int line = lineNear(point.y());
    QTextLayout layout;
    layOut(layout, line);
    return m_lines.start(line) + layout.lineAt(0).xToCursor(point.x() - placeOf(line).x());
}

QRect ScriptView::cursorRect(int position) const
{
    const int line = m_lines.lineAt(position);
    QTextLayout layout;
    layOut(layout, line);
    const double x = layout.lineAt(0).cursorToX(position - m_lines.start(line));
    return {placeOf(line) + QPoint(int(x), 0), QSize(CursorWidth, lineHeight())};
}

void ScriptView::copy() const
{
    if (m_anchor != m_cursor.position)
        QApplication::clipboard()->setText(selectedText());
}

/// Does not scroll to the end, as in other text fields.
void ScriptView::selectAll()
{
    m_anchor = 0;
    m_cursor = placeAt(m_lines, m_lines.text().size());
    viewport()->update();
    ScriptViewAccess::tellSelection(this);
}

void ScriptView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        measure();
    if (event->type() == QEvent::PaletteChange) {
        m_colours = ScriptColours(palette());
        viewport()->update();
    }
}

void ScriptView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    fitScrollBars();
}

void ScriptView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    if (m_lines.text().isEmpty())
        paintPlaceholder(painter);
    const int last = lineNear(event->rect().bottom());
    for (int line = lineNear(event->rect().top()); line <= last; ++line)
        paintLine(painter, line);
}

void ScriptView::paintPlaceholder(QPainter& painter) const
{
    painter.save();
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                     Qt::AlignTop | Qt::TextWordWrap, m_placeholder);
    painter.restore();
}

void ScriptView::paintLine(QPainter& painter, int line) const
{
    const QPoint place = placeOf(line);
    if (isChanged(line))
        painter.fillRect(0, place.y(), viewport()->width(), lineHeight(), m_colours.changed());
    QTextLayout layout;
    layOut(layout, line);
    QVector<QTextLayout::FormatRange> selected;
    const TextRange range = selection();
    const int start = qMax(range.start, m_lines.start(line)) - m_lines.start(line);
    const int end = qMin(range.end, m_lines.end(line) + 1) - m_lines.start(line);
    if (start < end) {
        const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
        QTextCharFormat format;
        format.setBackground(palette().brush(group, QPalette::Highlight));
        format.setForeground(palette().brush(group, QPalette::HighlightedText));
        selected.append({start, end - start, format});
    }
    layout.draw(&painter, place, selected);
    if (m_isCursorLit && m_lines.lineAt(m_cursor.position) == line)
        layout.drawCursor(&painter, place, m_cursor.position - m_lines.start(line), CursorWidth);
}

bool ScriptView::isChanged(int line) const
{
    const auto next = std::upper_bound(
        m_changes.begin(), m_changes.end(), line,
        [](int number, const LineChange& change) { return number < change.after; });
    if (next == m_changes.begin())
        return false;
    const LineChange& last = *std::prev(next);
    return line < last.after + last.come;
}

int ScriptView::visibleLines() const
{
    return qMax(1, (viewport()->height() - 2 * Margin) / lineHeight());
}

int ScriptView::lineNear(int y) const
{
    const int line = verticalScrollBar()->value() + (y - Margin) / lineHeight();
    return qBound(0, line, m_lines.count() - 1);
}

QPoint ScriptView::placeOf(int line) const
{
    return {Margin - horizontalScrollBar()->value(),
            Margin + (line - verticalScrollBar()->value()) * lineHeight()};
}

void ScriptView::layOut(QTextLayout& layout, int line) const
{
    const QString text = m_lines.line(line).toString();
    layout.setText(text);
    layout.setFont(font());
    layout.setFormats(m_colours.formats(text));
    layout.setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

/// Measures the text. In a fixed-width font, the line with the most characters is the widest line.
void ScriptView::measure()
{
    const QString longest = m_lines.line(m_lines.longest()).toString();
    m_textWidth = qCeil(QFontMetricsF(font()).horizontalAdvance(longest)) + CursorWidth;
    fitScrollBars();
    viewport()->update();
}

void ScriptView::fitScrollBars()
{
    QScrollBar* down = verticalScrollBar();
    down->setPageStep(visibleLines());
    down->setRange(0, qMax(0, m_lines.count() - visibleLines()));
    QScrollBar* across = horizontalScrollBar();
    across->setSingleStep(fontMetrics().averageCharWidth());
    across->setPageStep(viewport()->width());
    across->setRange(0, qMax(0, m_textWidth + 2 * Margin - viewport()->width()));
}

/// Scrolls no further than necessary.
void ScriptView::scrollTo(int position)
{
    QScrollBar* down = verticalScrollBar();
    const int line = m_lines.lineAt(position);
    down->setValue(qBound(line - visibleLines() + 1, down->value(), line));
    QScrollBar* across = horizontalScrollBar();
    const int x = cursorRect(position).x();
    const int right = viewport()->width() - Margin - CursorWidth;
    if (x < Margin)
        across->setValue(across->value() + x - Margin);
    else if (x > right)
        across->setValue(across->value() + x - right);
}

} // namespace workbench
