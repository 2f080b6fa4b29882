#pragma once

#include "vkd_qt_export.h"

#include <QTimer>
#include <QTreeWidget>

class VKD_QT_Menu;

/// QTreeWidget whose check boxes can follow each other. Items without a check box are passed over
/// and get none: their children count as children of the item above. Not to be used together with
/// Qt::ItemIsAutoTristate.
class VKD_QT_EXPORT VKD_QT_TreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit VKD_QT_TreeWidget(QWidget* parent = nullptr, const char* name = nullptr);

    /// While this is on, a change of an item's check state, by the user or by setCheckState(), goes
    /// down to all check boxes below, and each item above becomes Checked if all its children are,
    /// Unchecked if none is, and PartiallyChecked otherwise. PartiallyChecked goes up, but not
    /// down; on a parent it stays until the next change below it. At first this is off. Switching
    /// it on changes nothing by itself, nor do items that come or go: for both there is
    /// settleCheckStates(). Each column is on its own.
    void setAutomaticCheckStateUpdate(bool on);

    /// Makes the only column as wide as the texts that have come into view since the tree was
    /// filled, or as the tree if that is wider: a narrow tree can be moved sideways. It does not
    /// shrink with what goes out of view, because the scroll bar that the width brings would then
    /// come and go without end.
    void setColumnFitsTexts();

    /// Gives every item with check boxes below it the state that follows from them, in one pass. To
    /// be called after many changes without the automatic update; then the states are those that
    /// single steps with it would have led to.
    void settleCheckStates();

    /// Adds the action that opens or closes all branches to the menu, which owns it and must not
    /// outlive the tree. Closing them makes the visible item above the current one current.
    QAction* addExpandAll(VKD_QT_Menu* menu);
    QAction* addCollapseAll(VKD_QT_Menu* menu);

    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                     const QVector<int>& roles = QVector<int>()) override;
    void reset() override;

Q_SIGNALS:
    /// Check states have changed: sent once for each step with the automatic update, however many
    /// states it changed, and once by settleCheckStates(). itemChanged() is sent just before, and
    /// only for the item that the step began with; all states are settled by then. Other observers
    /// of the model hear of that item only.
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
