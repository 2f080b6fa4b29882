#include "window/script/ScriptViewAccess.h"

#include "window/script/ScriptView.h"

namespace workbench {

namespace {
QAccessibleInterface* newAccess(const QString&, QObject* object)
{
    const auto view = qobject_cast<ScriptView*>(object);
    return view ? new ScriptViewAccess(view) : nullptr;
}

QString textOf(const TextLines& lines, int first, int count)
{
    return count > 0 ? lines.text().mid(lines.start(first),
                                        lines.end(first + count - 1) - lines.start(first))
                     : QString();
}
} // namespace

ScriptViewAccess::ScriptViewAccess(ScriptView* view)
    : QAccessibleWidget(view, QAccessible::EditableText)
{
}

void ScriptViewAccess::install()
{
    static const bool isInstalled = (QAccessible::installFactory(newAccess), true);
    Q_UNUSED(isInstalled)
}

void ScriptViewAccess::tellText(ScriptView* view, const TextLines& before,
                                const QVector<LineChange>& changes)
{
    if (!QAccessible::isActive())
        return;
    for (const LineChange& change : changes) {
        const TextLines& after = view->lines();
        const int start =
            change.after < after.count() ? after.start(change.after) : after.text().size();
        QAccessibleTextUpdateEvent event(view, start, textOf(before, change.before, change.gone),
                                         textOf(after, change.after, change.come));
        QAccessible::updateAccessibility(&event);
    }
}

void ScriptViewAccess::tellSelection(ScriptView* view)
{
    if (!QAccessible::isActive())
        return;
    const TextRange range = view->selection();
    QAccessibleTextSelectionEvent event(view, range.start, range.end);
    event.setCursorPosition(view->cursorPosition());
    QAccessible::updateAccessibility(&event);
}

ScriptView* ScriptViewAccess::view() const
{
    return static_cast<ScriptView*>(widget());
}

void* ScriptViewAccess::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State ScriptViewAccess::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.readOnly = true;
    state.selectableText = true;
    return state;
}

QString ScriptViewAccess::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? view()->plainText() : QAccessibleWidget::text(kind);
}

void ScriptViewAccess::selection(int index, int* start, int* end) const
{
    const TextRange range = index == 0 ? view()->selection() : TextRange();
    *start = range.start;
    *end = range.end;
}

int ScriptViewAccess::selectionCount() const
{
    const TextRange range = view()->selection();
    return range.start < range.end ? 1 : 0;
}

void ScriptViewAccess::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void ScriptViewAccess::removeSelection(int index)
{
    if (index == 0)
        setCursorPosition(cursorPosition());
}

void ScriptViewAccess::setSelection(int index, int start, int end)
{
    if (index == 0)
        view()->select(start, end);
}

int ScriptViewAccess::cursorPosition() const
{
    return view()->cursorPosition();
}

void ScriptViewAccess::setCursorPosition(int position)
{
    view()->select(position, position);
}

QString ScriptViewAccess::text(int start, int end) const
{
    return view()->plainText().mid(start, end - start);
}

int ScriptViewAccess::characterCount() const
{
    return view()->lines().text().size();
}

/// Returns an empty rectangle for a newline.
QRect ScriptViewAccess::characterRect(int offset) const
{
    if (offset < 0 || offset > characterCount())
        return {};
    const QRect left = view()->cursorRect(offset);
    const int next = qMin(offset + 1, view()->lines().end(view()->lines().lineAt(offset)));
    const QRect place(left.topLeft(), view()->cursorRect(next).bottomLeft() - QPoint(1, 0));
    return {view()->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int ScriptViewAccess::offsetAtPoint(const QPoint& point) const
{
    return view()->positionAt(view()->viewport()->mapFromGlobal(point));
}

void ScriptViewAccess::scrollToSubstring(int start, int end)
{
    view()->select(end, start);
}

QString ScriptViewAccess::attributes(int offset, int* start, int* end) const
{
    const TextLines& lines = view()->lines();
    const int line = lines.lineAt(qBound(0, offset, characterCount()));
    *start = lines.start(line);
    *end = lines.end(line);
    return {};
}

} // namespace workbench
