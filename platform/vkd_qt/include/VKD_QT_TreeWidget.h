#pragma once

#include "vkd_qt_export.h"

#include <QTimer>
#include <QTreeWidget>

class VKD_QT_Menu;

/// A QTreeWidget whose check boxes can update each other. Items without a check box are skipped and
/// get none: their children count as children of the item above. Do not combine it with
/// Qt::ItemIsAutoTristate.
class VKD_QT_EXPORT VKD_QT_TreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit VKD_QT_TreeWidget(QWidget* parent = nullptr, const char* name = nullptr);

    /// Switches the automatic update on or off; it is off at first. While it is on, a change of a
    /// check state, by the user or by setCheckState(), is copied to all check boxes below the item.
    /// Each item above becomes Checked if all its children are, Unchecked if none is, and
    /// PartiallyChecked otherwise. PartiallyChecked is propagated upwards only; set on a parent, it
    /// remains until the next change below it. Neither switching on nor adding or removing items
    /// changes a state. Columns are independent.
    void setAutomaticCheckStateUpdate(bool on);

    /// Makes the only column as wide as the widest text that was visible since the tree was filled,
    /// or as the tree if that is wider, so that a narrow tree can be scrolled horizontally. The
    /// column does not shrink again, because its scroll bar would then appear and disappear
    /// endlessly.
    void setColumnFitsTexts();

    /// Adds the action that expands or collapses all branches to the menu. The menu owns the action
    /// and must not outlive the tree. Collapsing makes the visible ancestor of the current item
    /// current.
    QAction* addExpandAll(VKD_QT_Menu* menu);
    QAction* addCollapseAll(VKD_QT_Menu* menu);

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QVector<int>& roles = QVector<int>()) override;
    void reset() override;

Q_SIGNALS:
    /// Emitted once for each step of the automatic update, however many states it changed.
    /// itemChanged() is emitted just before, only for the item that caused the step; all states are
    /// updated by then. Other observers of the model are notified about that item only.
    void checkStatesChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void showEvent(QShowEvent* event) override;
    void updateGeometries() override;
    QStyleOptionViewItem viewOptions() const override;

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
