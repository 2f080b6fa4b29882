// The part of the view that handles keyboard and mouse input.

#include "window/script/ScriptView.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QStyleHints>
#include <QTimerEvent>

#include <memory>

namespace workbench {

namespace {
constexpr int ScrollInterval = 100; // ms

/// Standard keys that move the cursor, each with the key that also extends the selection.
constexpr struct
{
    QKeySequence::StandardKey moves;
    QKeySequence::StandardKey selects;
    TextMove move;
} MoveKeys[] = {
    {QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar,
     TextMove::PreviousCharacter},
    {QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, TextMove::NextCharacter},
    {QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, TextMove::PreviousWord},
    {QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, TextMove::NextWord},
    {QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, TextMove::LineStart},
    {QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, TextMove::LineEnd},
    {QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, TextMove::PreviousLine},
    {QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, TextMove::NextLine},
    {QKeySequence::MoveToPreviousPage, QKeySequence::SelectPreviousPage, TextMove::PreviousPage},
    {QKeySequence::MoveToNextPage, QKeySequence::SelectNextPage, TextMove::NextPage},
    {QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, TextMove::Start},
    {QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, TextMove::End}};

TextRange characterAt(const TextLines&, int position)
{
    return {position, position};
}
} // namespace

/// Accepts keys that the view uses, so that they do not trigger shortcuts of the window.
bool ScriptView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::SelectAll))
            event->accept();
    }
    return QAbstractScrollArea::event(event);
}

void ScriptView::keyPressEvent(QKeyEvent* event)
{
    for (const auto& key : MoveKeys) {
        const bool selects = event->matches(key.selects);
        if (selects || event->matches(key.moves))
            return setCursor(moved(m_lines, m_cursor, key.move, visibleLines()), selects);
    }
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT lineChosen(m_lines.lineAt(m_cursor.position));
    else if (event->key() == Qt::Key_Space)
        verticalScrollBar()->triggerAction(event->modifiers() & Qt::ShiftModifier
                                               ? QAbstractSlider::SliderPageStepSub
                                               : QAbstractSlider::SliderPageStepAdd);
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void ScriptView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QAbstractScrollArea::mousePressEvent(event);
    const int position = positionAt(event->pos());
    const TextRange selected = selection();
    const bool isThird =
        m_sinceDoubleClick.isValid() &&
        !m_sinceDoubleClick.hasExpired(QApplication::doubleClickInterval()) &&
        (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    m_pressed = event->pos();
    m_sinceDoubleClick.invalidate();
    m_mayDrag = !isThird && !(event->modifiers() & Qt::ShiftModifier) &&
                position >= selected.start && position < selected.end;
    if (m_mayDrag)
        return;
    if (isThird)
        return beginSelection(position, lineAt);
    if (!(event->modifiers() & Qt::ShiftModifier))
        return beginSelection(position, characterAt);
    m_unit = characterAt;
    m_first = {m_anchor, m_anchor};
    extendSelection(event->pos());
}

void ScriptView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_mayDrag = false;
    m_pressed = event->pos();
    m_sinceDoubleClick.start();
    beginSelection(positionAt(event->pos()), wordAt);
}

void ScriptView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_mayDrag &&
        (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        return dragSelection();
    if (!m_unit)
        return;
    extendSelection(event->pos());
    if (viewport()->rect().contains(event->pos()))
        m_scrolling.stop();
    else if (!m_scrolling.isActive())
        m_scrolling.start(ScrollInterval, this);
}

void ScriptView::mouseReleaseEvent(QMouseEvent* event)
{
    m_scrolling.stop();
    const bool isClick = m_mayDrag || m_unit == characterAt;
    if (m_unit)
        extendSelection(event->pos());
    m_unit = nullptr;
    if (m_mayDrag)
        beginSelection(positionAt(event->pos()), nullptr);
    m_mayDrag = false;
    if (isClick && m_anchor == m_cursor.position)
        Q_EMIT lineChosen(m_lines.lineAt(m_anchor));
    QClipboard* clipboard = QApplication::clipboard();
    if (event->button() == Qt::LeftButton && clipboard->supportsSelection() &&
        m_anchor != m_cursor.position)
        clipboard->setText(selectedText(), QClipboard::Selection);
}

/// Selects the unit at this position. If `unit` is null, clears the selection.
void ScriptView::beginSelection(int position, Unit unit)
{
    m_unit = unit;
    m_first = unit ? unit(m_lines, position) : characterAt(m_lines, position);
    select(m_first.start, m_first.end);
}

/// Selects the range from the first unit to the unit at this point.
void ScriptView::extendSelection(const QPoint& point)
{
    const TextRange last = m_unit(m_lines, positionAt(point));
    if (last.start < m_first.start)
        select(m_first.end, last.start);
    else
        select(m_first.start, qMax(last.end, m_first.end));
}

void ScriptView::dragSelection()
{
    m_mayDrag = false;
    auto text = std::make_unique<QMimeData>();
    text->setText(selectedText());
    auto drag = new QDrag(this);
    drag->setMimeData(text.release());
    drag->exec(Qt::CopyAction);
}

/// If nothing is selected, the menu applies to the line under the mouse.
void ScriptView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Mouse && m_anchor == m_cursor.position) {
        setCursor(placeAt(m_lines, positionAt(event->pos())), false);
        Q_EMIT lineChosen(m_lines.lineAt(m_anchor));
    }
    QMenu menu(this);
    QAction* copying = menu.addAction(tr("&Copy"), this, &ScriptView::copy);
    copying->setShortcut(QKeySequence::Copy);
    copying->setEnabled(m_anchor != m_cursor.position);
    QAction* selecting = menu.addAction(tr("Select &All"), this, &ScriptView::selectAll);
    selecting->setShortcut(QKeySequence::SelectAll);
    selecting->setEnabled(!m_lines.text().isEmpty());
    menu.addSeparator();
    menu.addActions(actions());
    menu.exec(event->globalPos());
}

void ScriptView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    showCursor();
}

void ScriptView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    showCursor();
}

/// Shows the cursor, which blinks while the view has the focus.
void ScriptView::showCursor()
{
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    m_isCursorLit = hasFocus();
    if (m_isCursorLit && period >= 2)
        m_blinking.start(period / 2, this);
    else
        m_blinking.stop();
    viewport()->update();
}

void ScriptView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_blinking.timerId()) {
        m_isCursorLit = !m_isCursorLit;
        viewport()->update(cursorRect(m_cursor.position).adjusted(-1, 0, 1, 0));
    } else if (event->timerId() == m_scrolling.timerId() && m_unit) {
        extendSelection(viewport()->mapFromGlobal(QCursor::pos()));
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

} // namespace workbench
