#include "VKD_QT_TreeWidget.h"

#include "trees/treeCheckStates.h"
#include "VKD_QT_Menu.h"
#include "VKD_QT_SignalBlocker.h"
#include "vkd_qt_visibleLines.h"

#include <QHeaderView>
#include <QKeyEvent>

VKD_QT_TreeWidget::VKD_QT_TreeWidget(QWidget* parent, const char* name)
    : QTreeWidget(parent)
{
    setObjectName(QLatin1String(name));
    // Connected after QTreeWidget's own slots, because a slot connected to checkStatesChanged() may
    // delete the item.
    connect(model(), &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex&, const QModelIndex&, const QVector<int>& roles) {
                if (m_isAutomatic && roles.contains(Qt::CheckStateRole))
                    Q_EMIT checkStatesChanged();
            });
}

void VKD_QT_TreeWidget::setAutomaticCheckStateUpdate(bool on)
{
    m_isAutomatic = on;
}

QAction* VKD_QT_TreeWidget::addExpandAll(VKD_QT_Menu* menu)
{
    QAction* action = menu->addAction(tr("Expand All"), this, &QTreeView::expandAll);
    action->setObjectName(QStringLiteral("actExpandAll"));
    return action;
}

QAction* VKD_QT_TreeWidget::addCollapseAll(VKD_QT_Menu* menu)
{
    QAction* action = menu->addAction(tr("Collapse All"), this, &VKD_QT_TreeWidget::closeBranches);
    action->setObjectName(QStringLiteral("actCollapseAll"));
    return action;
}

void VKD_QT_TreeWidget::closeBranches()
{
    collapseAll();
    QTreeWidgetItem* item = currentItem();
    if (!item)
        return;
    while (item->parent())
        item = item->parent();
    // Without a current item, the arrow keys would start at the first row.
    setCurrentItem(item, currentColumn(), QItemSelectionModel::NoUpdate);
}

/// Updates the states. The view is notified before other observers, so that all states are already
/// updated when the other observers are notified.
void VKD_QT_TreeWidget::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                    const QVector<int>& roles)
{
    QTreeWidget::dataChanged(topLeft, bottomRight, roles);
    if (!m_isAutomatic || !roles.contains(Qt::CheckStateRole))
        return;
    QTreeWidgetItem* item = itemFromIndex(topLeft);
    if (!item || !hasCheckBox(item, topLeft.column()))
        return;
    const Qt::CheckState state = item->checkState(topLeft.column());
    const VKD_QT_SignalBlocker silence(model());
    if (state != Qt::PartiallyChecked)
        carryDown(item, topLeft.column(), state);
    settleAncestors(item, topLeft);
    viewport()->update();
}

/// Toggles the check box of the current row. Qt's handling of Space considers only the current
/// cell, which may be in a column without a check box.
void VKD_QT_TreeWidget::keyPressEvent(QKeyEvent* event)
{
    constexpr Qt::ItemFlags Usable = Qt::ItemIsEnabled | Qt::ItemIsUserCheckable;
    QTreeWidgetItem* item = currentItem();
    const bool isBeside = event->key() == Qt::Key_Space && item && currentColumn() > 0 &&
                          (item->flags() & Usable) == Usable &&
                          !hasCheckBox(item, currentColumn()) && hasCheckBox(item, 0);
    if (!isBeside)
        return QTreeWidget::keyPressEvent(event);
    item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void VKD_QT_TreeWidget::setColumnFitsTexts()
{
    constexpr int RowsInView = 0;
    m_columnFits = true;
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setResizeContentsPrecision(RowsInView);
    m_measuring.setSingleShot(true);
    connect(&m_measuring, &QTimer::timeout, this, &VKD_QT_TreeWidget::measure);
}

/// Postpones the measurement until the tree is shown. Most trees are already wide enough, and
/// measuring first would delay them.
void VKD_QT_TreeWidget::measureLater()
{
    if (m_columnFits && isVisible())
        m_measuring.start();
}

void VKD_QT_TreeWidget::measure()
{
    m_textWidth = qMax(m_textWidth, sizeHintForColumn(0));
    fitColumn();
}

void VKD_QT_TreeWidget::fitColumn()
{
    if (m_columnFits)
        header()->resizeSection(0, qMax(m_textWidth, viewport()->width()));
}

void VKD_QT_TreeWidget::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    fitColumn();
}

void VKD_QT_TreeWidget::showEvent(QShowEvent* event)
{
    QTreeWidget::showEvent(event);
    measureLater();
}

void VKD_QT_TreeWidget::reset()
{
    QTreeWidget::reset();
    m_textWidth = 0;
}

void VKD_QT_TreeWidget::scrollContentsBy(int dx, int dy)
{
    QTreeWidget::scrollContentsBy(dx, dy);
    if (dy != 0)
        measureLater();
}

/// Called when other rows may have become visible.
void VKD_QT_TreeWidget::updateGeometries()
{
    QTreeWidget::updateGeometries();
    measureLater();
}

VKD_QT_DEFINE_VIEW_OPTIONS(VKD_QT_TreeWidget, QTreeWidget, vkd_qt_visibleLines)
