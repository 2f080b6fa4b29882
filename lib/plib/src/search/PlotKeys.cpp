#include "search/PlotKeys.h"

#include "search/PlotSearch.h"
#include "search/SearchBar.h"
#include "search/ShownBoxes.h"

#include <VKD_QT_TreeWidget.h>

#include <QAction>
#include <QBoxLayout>
#include <QContextMenuEvent>

namespace plib {

namespace {
template <typename Slot>
QAction* addAction(QWidget* page, const char* name, const QString& text, const QKeySequence& key,
                   PlotKeys* receiver, Slot slot)
{
    auto action = new QAction(text, page);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(action, &QAction::triggered, receiver, slot);
    page->addAction(action);
    return action;
}
} // namespace

PlotKeys::PlotKeys(QWidget* page, VKD_QT_TreeWidget* tree, QBoxLayout* column)
    : QObject(page)
    , m_tree(tree)
    , m_column(column)
    , m_search(new PlotSearch(tree))
    , m_boxes(new ShownBoxes(m_search, tree))
{
    addActions(page);
    tree->installEventFilter(this);
}

void PlotKeys::addActions(QWidget* page)
{
    addAction(page, "findPlots", tr("Find Plots"), int(Qt::CTRL) | Qt::Key_F, this,
              [this] { bar()->open(Qt::ShortcutFocusReason); });
    addAction(page, "findNextPlot", tr("Find Next"), Qt::Key_F3, this, [this] { step(true); });
    addAction(page, "findPreviousPlot", tr("Find Previous"), int(Qt::SHIFT) | Qt::Key_F3, this,
              [this] { step(false); });
    QAction* unchecking =
        addAction(page, "uncheckPlots", tr("Uncheck"), Qt::Key_Delete, this, [this] { uncheck(); });
    // The fields of the page need the key themselves.
    unchecking->setShortcutContext(Qt::WidgetShortcut);
    m_tree->addAction(unchecking);
}

SearchBar* PlotKeys::bar()
{
    if (!m_bar) {
        m_bar = new SearchBar(m_search, m_tree);
        m_column->insertWidget(m_column->indexOf(m_tree), m_bar);
    }
    return m_bar;
}

bool PlotKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && press(*static_cast<QKeyEvent*>(event)))
        return true;
    const bool isMenu = event->type() == QEvent::ContextMenu;
    if (isMenu && static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard) {
        openMenu();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

/// Returns whether the key has been used.
bool PlotKeys::press(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: enter(!(event.modifiers() & Qt::ShiftModifier)); return true;
    case Qt::Key_Escape:
        if (!m_bar || !m_bar->isVisible())
            return false;
        m_bar->leave();
        return true;
    case Qt::Key_F10: // not every platform reports it as a key for context menus
        if (event.modifiers() != Qt::ShiftModifier)
            return false;
        openMenu();
        return true;
    default: return type(event);
    }
}

bool PlotKeys::type(const QKeyEvent& event)
{
    const QString text = event.text();
    const bool isCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool isUsedByTree = QStringLiteral(" +-*").contains(text);
    if (text.isEmpty() || !text[0].isPrint() || isCommand || isUsedByTree)
        return false;
    bar()->type(text);
    return true;
}

void PlotKeys::enter(bool forward)
{
    if (m_search->isActive())
        m_search->step(forward);
    else if (QTreeWidgetItem* item = m_tree->currentItem())
        item->setExpanded(!item->isExpanded());
}

void PlotKeys::step(bool forward)
{
    if (m_search->isActive())
        m_search->step(forward);
    else
        bar()->open(Qt::ShortcutFocusReason);
}

void PlotKeys::uncheck()
{
    QTreeWidgetItem* item = m_tree->currentItem();
    if (item && item->data(0, Qt::CheckStateRole).isValid())
        m_boxes->set(item, Qt::Unchecked);
}

/// Opens the menu below the current row.
void PlotKeys::openMenu()
{
    QPoint place(0, 0);
    if (QTreeWidgetItem* item = m_tree->currentItem()) {
        m_tree->scrollToItem(item);
        place = m_tree->visualItemRect(item).bottomLeft();
    }
    Q_EMIT m_tree->customContextMenuRequested(m_tree->viewport()->mapTo(m_tree, place));
}

} // namespace plib
