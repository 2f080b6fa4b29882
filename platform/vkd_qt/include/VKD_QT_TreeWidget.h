#pragma once

#include "vkd_qt_export.h"
#include "vkd_qt_qt6.h"

#include <QTimer>
#include <QTreeWidget>

class VKD_QT_Menu;

/// A QTreeWidget whose check boxes can update each other. Items without a check box are skipped:
/// their children are treated as children of the item above. Do not combine this class with
/// Qt::ItemIsAutoTristate.
class VKD_QT_EXPORT VKD_QT_TreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit VKD_QT_TreeWidget(QWidget* parent = nullptr, const char* name = nullptr);

    /// Enables or disables the automatic update, which is initially disabled. While it is enabled,
    /// a change to a check state, by the user or by setCheckState(), is copied to all check boxes
    /// below the item. Each item above becomes Checked if all its children are Checked, Unchecked
    /// if all are Unchecked, and PartiallyChecked otherwise. PartiallyChecked is propagated only
    /// upwards. If it is set on a parent, it remains until the next change below the parent.
    /// Enabling the update, adding items and removing items do not change any state. Columns are
    /// independent.
    void setAutomaticCheckStateUpdate(bool on);

    /// Makes the only column as wide as the widest text that has been visible since the tree was
    /// filled, so that a narrow tree can be scrolled horizontally. In a wider tree, the column is
    /// as wide as the tree. The column never shrinks, because otherwise its scroll bar could appear
    /// and disappear endlessly.
    void setColumnFitsTexts();

    /// Adds to the menu an action that expands or collapses all branches. The menu owns the action
    /// and must not outlive the tree. After collapsing, the visible ancestor of the current item
    /// becomes the current item.
    QAction* addExpandAll(VKD_QT_Menu* menu);
    QAction* addCollapseAll(VKD_QT_Menu* menu);

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QVector<int>& roles = QVector<int>()) override;
    void reset() override;

Q_SIGNALS:
    /// Emitted once after each automatic update, regardless of how many states have changed.
    /// itemChanged() is emitted before this signal, but only for the item that caused the update.
    /// By then, all states have been updated. Other observers of the model are notified only about
    /// that item.
    void checkStatesChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void updateGeometries() override;
    VKD_QT_DECLARE_VIEW_OPTIONS;

private:
    void closeBranches();
    void measureLater();
    void measure();
    void fitColumn();

    bool m_isAutomatic = false;
    bool m_columnFits = false;
    int m_textWidth = 0;
    QTimer m_measuring;
};
