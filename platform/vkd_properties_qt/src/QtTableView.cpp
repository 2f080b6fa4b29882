#include "QtTableView.h"

#include "ReadOnlyDelegate.h"

#include <vkd_qt_copyCells.h>
#include <vkd_qt_visibleLines.h>

#include <QChildEvent>
#include <QKeyEvent>

#include <utility>

namespace vkd::properties::nextGen {

QtTableView::QtTableView(QWidget* parent)
    : QTableView(parent)
{
    setItemDelegate(new ReadOnlyDelegate(this));
}

void QtTableView::set_read_only(bool readOnly)
{
    if (readOnly == m_readOnly)
        return;
    m_readOnly = readOnly;
    if (readOnly) {
        closeOpenEditor();
        disableWidgets();
    } else {
        enableWidgets();
    }
    viewport()->update();
}

bool QtTableView::is_read_only() const
{
    return m_readOnly;
}

/// Qt also toggles the check boxes of cells through this function.
bool QtTableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    return !m_readOnly && QTableView::edit(index, trigger, event);
}

void QtTableView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        vkd_qt_copyCells(selectedIndexes(),
                         [](const QModelIndex& cell) { return cell.data().toString(); });
    else
        QTableView::keyPressEvent(event);
}

/// Allows only copying in read-only mode, because moving cells elsewhere would remove them from the
/// model.
void QtTableView::startDrag(Qt::DropActions actions)
{
    const Qt::DropActions allowed = m_readOnly ? actions & Qt::CopyAction : actions;
    if (allowed)
        QTableView::startDrag(allowed);
}

bool QtTableView::viewportEvent(QEvent* event)
{
    if (!m_readOnly)
        return QTableView::viewportEvent(event);
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: event->ignore(); return true;
    case QEvent::ChildPolished: // placed over a cell or shown again while the table is read-only
        disableWidget(qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child()));
        break;
    default: break;
    }
    return QTableView::viewportEvent(event);
}

void QtTableView::closeOpenEditor()
{
    QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void QtTableView::disableWidgets()
{
    const QList<QWidget*> widgets =
        viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets)
        disableWidget(widget);
}

/// Widgets that the host has disabled are not added to the list, so enableWidgets() leaves them
/// disabled.
void QtTableView::disableWidget(QWidget* widget)
{
    if (!widget || !widget->isEnabledTo(viewport()))
        return;
    widget->setEnabled(false);
    m_disabled.emplace_back(widget);
}

void QtTableView::enableWidgets()
{
    for (const QPointer<QWidget>& widget : std::exchange(m_disabled, {}))
        if (widget)
            widget->setEnabled(true);
}

VKD_QT_DEFINE_VIEW_OPTIONS(QtTableView, QTableView, vkd_qt_visibleLines)

} // namespace vkd::properties::nextGen
