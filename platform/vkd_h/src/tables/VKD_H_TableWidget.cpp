#include "VKD_H_TableWidget.h"

#include "tables/CellDelegate.h"
#include "VKD_H_TableItems.h"

#include <vkd_qt_copyCells.h>
#include <VKD_QT_Menu.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QHeaderView>

#include <algorithm>

namespace {
constexpr int CopyTextsKey = int(Qt::CTRL) | Qt::ALT | Qt::Key_C;

void removeCellWidgets(QTableWidget* table, int row)
{
    for (int column = 0; column < table->columnCount(); ++column)
        if (table->cellWidget(row, column))
            table->removeCellWidget(row, column);
}
} // namespace

VKD_H_TableWidget::VKD_H_TableWidget(int rows, int columns, QWidget* parent, const char* name)
    : VKD_QT_TableWidget(rows, columns, parent, name)
    , m_rowCount(rows)
{
    setTabKeyNavigation(false);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setItemDelegate(new CellDelegate(this));
    const auto changed = [this] { rowCountMayHaveChanged(); };
    connect(model(), &QAbstractItemModel::rowsInserted, this, changed);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, changed);
    connect(model(), &QAbstractItemModel::modelReset, this, changed);
}

/// Disconnects the model, which outlives this subobject and is reset while the base class is
/// destroyed.
VKD_H_TableWidget::~VKD_H_TableWidget()
{
    model()->disconnect(this);
}

void VKD_H_TableWidget::rowCountMayHaveChanged()
{
    const int before = m_rowCount;
    m_rowCount = rowCount();
    if (before != m_rowCount)
        Q_EMIT signal_rowCountChanged(before, m_rowCount);
}

void VKD_H_TableWidget::setContextmenueEnabled_new_del(bool enabled)
{
    m_addsAndDeletes = enabled;
}

int VKD_H_TableWidget::getColumnNumber(int id) const
{
    for (int column = 0; column < columnCount(); ++column)
        if (horizontalHeaderItem(column) && getColumnId(column) == id)
            return column;
    return -1;
}

int VKD_H_TableWidget::getColumnId(int column) const
{
    const auto header = dynamic_cast<const VKD_H_TwHeaderItem*>(horizontalHeaderItem(column));
    return header ? header->columnId() : -1;
}

QTableWidgetItem* VKD_H_TableWidget::itemOnColId(int row, int id) const
{
    return item(row, getColumnNumber(id));
}

void VKD_H_TableWidget::addNewRow(bool withItems)
{
    const int row = rowCount();
    insertRow(row);
    if (withItems)
        createEmptyItems(row);
}

void VKD_H_TableWidget::createEmptyItems(int row)
{
    for (int column = 0; column < columnCount(); ++column)
        if (const auto header =
                dynamic_cast<const VKD_H_TwHeaderItem*>(horizontalHeaderItem(column)))
            setItem(row, column, header->createEmptyItem());
}

/// Moves the remaining rows up and then removes the surplus rows at the end in one call, because
/// removing rows one by one takes quadratic time.
void VKD_H_TableWidget::deleteSelectedRows()
{
    const std::set<int> rows = getSelectetRows();
    if (rows.empty())
        return;
    if (isAncestorOf(QApplication::focusWidget()))
        setFocus(); // commits and closes an open editor
    const int above = int(std::distance(rows.begin(), rows.lower_bound(currentRow())));
    const QPoint current(currentColumn(), currentRow() - above);
    int kept = *rows.begin();
    {
        const QSignalBlocker blocker(model());
        // With updates enabled, the header computes the position of each row whose height changes.
        const bool updates = verticalHeader()->updatesEnabled();
        verticalHeader()->setUpdatesEnabled(false);
        for (int row = kept; row < rowCount(); ++row) {
            removeCellWidgets(this, row);
            if (!rows.count(row))
                moveRow(row, kept++);
        }
        verticalHeader()->setUpdatesEnabled(updates);
    }
    model()->removeRows(kept, rowCount() - kept);
    clearSelection();
    selectionModel()->setCurrentIndex(model()->index(qMin(current.y(), kept - 1), current.x()),
                                      QItemSelectionModel::NoUpdate);
    viewport()->update();
}

void VKD_H_TableWidget::moveRow(int row, int to)
{
    for (int column = 0; column < columnCount(); ++column)
        setItem(to, column, takeItem(row, column));
    setVerticalHeaderItem(to, takeVerticalHeaderItem(row));
    const bool isHidden = isRowHidden(row);
    for (int shown : {row, to})
        setRowHidden(shown, false); // hidden rows have no height
    setRowHeight(to, rowHeight(row));
    setRowHidden(to, isHidden);
}

bool VKD_H_TableWidget::hasActionFor(QKeySequence::StandardKey key) const
{
    const QList<QAction*> added = actions();
    return std::any_of(added.begin(), added.end(), [key](const QAction* action) {
        return action->shortcuts().contains(QKeySequence(key));
    });
}

VKD_QT_Menu* VKD_H_TableWidget::getContextMenu()
{
    delete m_menu;
    m_menu = new VKD_QT_Menu(this);
    // An added action with the standard shortcut for Copy copies something else.
    const bool isKeyTaken = hasActionFor(QKeySequence::Copy);
    QAction* copy = m_menu->addAction(isKeyTaken ? tr("Copy Cell Texts") : tr("Copy"), this,
                                      &VKD_H_TableWidget::copySelection);
    copy->setEnabled(selectionModel()->hasSelection());
    copy->setShortcut(isKeyTaken ? QKeySequence(CopyTextsKey) : QKeySequence(QKeySequence::Copy));
    m_menu->addAction(tr("Select All"), this, &QTableWidget::selectAll)
        ->setShortcut(QKeySequence::SelectAll);
    if (!actions().isEmpty())
        m_menu->addSeparator();
    m_menu->addActions(actions());
    if (m_addsAndDeletes) {
        m_menu->addSeparator();
        m_menu->addAction(tr("New"), this, [this] { addNewRow(true); });
        m_menu->addAction(tr("Delete"), this, &VKD_H_TableWidget::deleteSelectedRows);
    }
    return m_menu;
}

/// Returns the displayed text, which may be the text of a widget over the cell.
QString VKD_H_TableWidget::shownText(const QModelIndex& cell) const
{
    const QWidget* widget = indexWidget(cell);
    auto combo = qobject_cast<const QComboBox*>(widget);
    if (!combo && widget)
        combo = widget->findChild<QComboBox*>();
    return combo ? combo->currentText() : cell.data().toString();
}

namespace {
/// Returns whether the event is a click that extends the selection or opens the context menu, or a
/// movement of the mouse while cells are being selected. Such an event must not move the focus to
/// the widget over the cell, because the view would then select only this cell.
bool isSelecting(const QEvent* event)
{
    switch (event ? event->type() : QEvent::None) {
    case QEvent::MouseMove: return static_cast<const QMouseEvent*>(event)->buttons() != 0;
    case QEvent::MouseButtonPress:
        return static_cast<const QMouseEvent*>(event)->button() != Qt::LeftButton;
    case QEvent::MouseButtonRelease: {
        const auto mouse = static_cast<const QMouseEvent*>(event);
        return mouse->button() != Qt::LeftButton ||
               (mouse->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    }
    default: return false;
    }
}
} // namespace

bool VKD_H_TableWidget::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (trigger == CurrentChanged || isSelecting(event))
        return false; // arrow keys move past widgets over cells
    // Typing a letter must not select an entry that begins with this letter.
    const bool isChoice =
        dynamic_cast<VKD_H_TwSimpleComboBoxItem*>(item(index.row(), index.column()));
    return !(isChoice && trigger == AnyKeyPressed) &&
           VKD_QT_TableWidget::edit(index, trigger, event);
}

void VKD_H_TableWidget::copySelection() const
{
    vkd_qt_copyCells(selectedIndexes(),
                     [this](const QModelIndex& cell) { return shownText(cell); });
}

void VKD_H_TableWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (VKD_QT_Menu* menu = getContextMenu())
        menu->exec(event->globalPos());
}

void VKD_H_TableWidget::keyPressEvent(QKeyEvent* event)
{
    const QWidget* open = event->key() == Qt::Key_Escape ? widgetOverACell() : nullptr;
    const int pressed = event->key() + int(event->modifiers());
    if (event->matches(QKeySequence::Copy) || pressed == CopyTextsKey)
        copySelection();
    else if (open)
        closeCell(open);
    else if (event->key() == Qt::Key_F2 || event->key() == Qt::Key_Return ||
             event->key() == Qt::Key_Enter)
        openCell();
    else if (m_addsAndDeletes && event->key() == Qt::Key_Insert)
        addNewRow(true);
    else if (m_addsAndDeletes && event->key() == Qt::Key_Delete)
        deleteSelectedRows();
    else
        VKD_QT_TableWidget::keyPressEvent(event);
}

/// Closes a widget over a cell by changing the selection. The focus returns to the table first so
/// that the page does not interpret the change as input in the widget.
void VKD_H_TableWidget::closeCell(const QWidget* widget)
{
    setFocus();
    const QModelIndex cell = indexAt(widget->geometry().center());
    if (cell.isValid() && cell != currentIndex())
        setCurrentIndex(cell);
    else
        Q_EMIT itemSelectionChanged();
}

/// Returns the widget over the current cell or, if there is none, over another cell.
const QWidget* VKD_H_TableWidget::widgetOverACell() const
{
    if (const QWidget* here = indexWidget(currentIndex()))
        return here;
    const QList<QWidget*> widgets =
        viewport()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* widget : widgets)
        if (!widget->isHidden())
            return widget;
    return nullptr;
}

/// Opens the current cell. Enter must not reach the dialog around the table, because it would
/// trigger OK. Pages that place widgets over cells interpret another itemSelectionChanged() as a
/// request to open such a widget.
void VKD_H_TableWidget::openCell()
{
    const QModelIndex cell = currentIndex();
    if (!cell.isValid() || stepInto(indexWidget(cell)))
        return;
    if (cell.flags() & Qt::ItemIsEditable)
        edit(cell, EditKeyPressed, nullptr); // has no effect if an editor is open
    else
        Q_EMIT itemSelectionChanged();
    stepInto(indexWidget(currentIndex()));
}

bool VKD_H_TableWidget::stepInto(QWidget* cell)
{
    QWidget* focused = QApplication::focusWidget();
    const bool isInside = cell && cell->isAncestorOf(focused);
    if (auto button = qobject_cast<QAbstractButton*>(isInside ? focused : cell))
        button->click();
    else if (cell)
        cell->setFocus(Qt::TabFocusReason);
    return cell;
}
