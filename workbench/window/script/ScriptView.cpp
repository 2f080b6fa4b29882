// The part of the view that draws the script. scriptViewGeometry.cpp computes the positions of the
// lines, and scriptViewInput.cpp handles keyboard and mouse input.

#include "window/script/ScriptView.h"

#include "window/script/ScriptGutter.h"
#include "window/script/ScriptViewAccess.h"

#include <QApplication>
#include <QClipboard>
#include <QPainter>
#include <QScrollBar>

namespace workbench {

namespace {
constexpr int RemovedHeight = 2;
} // namespace

ScriptView::ScriptView(QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_gutter(new ScriptGutter(this))
    , m_colours(palette())
{
    setFocusPolicy(Qt::WheelFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, m_gutter,
            QOverload<>::of(&QWidget::update));
    ScriptViewAccess::install();
    measure();
}

void ScriptView::setLines(const TextLines& lines, const QVector<LineChange>& changes)
{
    const TextLines before = m_lines;
    const int place = verticalScrollBar()->value();
    m_lines = lines;
    m_marks = ScriptMarks();
    m_marks.changes = changes;
    m_unit = nullptr;
    measure();
    verticalScrollBar()->setValue(place);
    const int line = changes.isEmpty() ? 0 : qMin(changes.first().after, lines.count() - 1);
    m_cursor = placeAt(lines, lines.start(line));
    m_anchor = m_cursor.position;
    if (!changes.isEmpty())
        scrollTo(m_anchor);
    updateAll();
    ScriptViewAccess::tellText(this, before, changes);
}

void ScriptView::setHits(const QVector<int>& hits, int length)
{
    m_marks.hits = hits;
    m_marks.hitLength = length;
    viewport()->update();
}

void ScriptView::setPlot(int firstLine, int lineCount)
{
    m_marks.firstOfPlot = firstLine;
    m_marks.linesOfPlot = lineCount;
    m_gutter->update();
}

void ScriptView::setFindings(const QVector<ScriptFinding>& findings)
{
    m_marks.findings = findings;
    viewport()->update();
}

void ScriptView::setGrammar(const ScriptGrammar* grammar)
{
    m_grammar = grammar;
    viewport()->update();
}

void ScriptView::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    viewport()->update();
}

void ScriptView::updateAll()
{
    viewport()->update();
    m_gutter->update();
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

void ScriptView::chooseLine(int line)
{
    select(m_lines.end(line), m_lines.start(line));
    Q_EMIT lineChosen(line);
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
        updateAll();
    }
}

void ScriptView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    if (m_lines.text().isEmpty())
        paintPlaceholder(painter);
    for (const LinePlace& place : visiblePlaces())
        if (place.top <= event->rect().bottom() && place.top + place.height > event->rect().top())
            paintLine(painter, place);
}

void ScriptView::paintPlaceholder(QPainter& painter) const
{
    painter.save();
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(Margin, Margin, -Margin, -Margin),
                     Qt::AlignTop | Qt::TextWordWrap, m_placeholder);
    painter.restore();
}

void ScriptView::paintLine(QPainter& painter, const LinePlace& place) const
{
    const int width = viewport()->width();
    if (m_marks.isChanged(place.line))
        painter.fillRect(0, place.top, width, place.height, m_colours.changed());
    if (m_marks.removedBefore(place.line) > 0)
        painter.fillRect(0, place.top - RemovedHeight / 2, width, RemovedHeight,
                         m_colours.removed());
    QTextLayout layout;
    layOut(layout, place.line, formatsOf(place.line));
    const QPoint origin = placeOf(place.line);
    layout.draw(&painter, origin, selectedIn(place.line));
    if (m_isCursorLit && m_lines.lineAt(m_cursor.position) == place.line)
        layout.drawCursor(&painter, origin, m_cursor.position - m_lines.start(place.line),
                          CursorWidth);
}

/// Returns the formats of the words, the hits and the findings in a line.
ScriptView::Formats ScriptView::formatsOf(int line) const
{
    Formats formats = m_colours.formats(m_lines.line(line).toString(), m_grammar);
    const int start = m_lines.start(line);
    const QVector<int>& hits = m_marks.hits;
    for (int i = m_marks.hitAt(start); i < hits.size() && hits[i] < m_lines.end(line); ++i)
        formats.append({hits[i] - start, m_marks.hitLength, m_colours.hit()});
    const QVector<ScriptFinding>& findings = m_marks.findings;
    for (int i = m_marks.findingAt(line); i < findings.size() && findings[i].line == line; ++i)
        formats.append({findings[i].start, findings[i].length, m_colours.finding()});
    return formats;
}

ScriptView::Formats ScriptView::selectedIn(int line) const
{
    const TextRange range = selection();
    const int start = qMax(range.start, m_lines.start(line)) - m_lines.start(line);
    const int end = qMin(range.end, m_lines.end(line) + 1) - m_lines.start(line);
    if (start >= end)
        return {};
    const auto group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    QTextCharFormat format;
    format.setBackground(palette().brush(group, QPalette::Highlight));
    format.setForeground(palette().brush(group, QPalette::HighlightedText));
    return {{start, end - start, format}};
}

} // namespace workbench
