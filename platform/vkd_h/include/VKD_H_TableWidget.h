#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TableWidget.h>

class VKD_QT_Menu;

/// The table widget of the framework. It has columns with ids (VKD_H_TableItems.h), cells with
/// combo boxes, functions to add and delete rows, a context menu and shortcuts.
///
/// The arrow keys move from cell to cell, and Tab leaves the table. F2 and Enter open the editor of
/// the current cell or move the focus to the widget over it. Pages that place their own widgets
/// over cells do so when the selection changes. Pressing F2, Enter or Escape again on the same cell
/// emits itemSelectionChanged() once more.
class VKD_H_EXPORT VKD_H_TableWidget : public VKD_QT_TableWidget
{
    Q_OBJECT

public:
    VKD_H_TableWidget(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);
    ~VKD_H_TableWidget() override;

    /// Sets whether rows can be added and deleted through the context menu and the keys Insert and
    /// Delete. The default is true.
    void setContextmenueEnabled_new_del(bool enabled);

    /// These functions convert the id of a column to its index and vice versa. They return -1 if
    /// the column does not exist.
    int getColumnNumber(int id) const;
    int getColumnId(int column) const;
    /// Returns the item of a row in the column with this id, or null if there is none.
    QTableWidgetItem* itemOnColId(int row, int id) const;

    /// Adds a row at the end, with empty items if `withItems` is true.
    virtual void addNewRow(bool withItems);
    /// Fills each cell of a row with an empty item created by the column header.
    virtual void createEmptyItems(int row);
    /// Deletes, in one pass, all rows that contain a selected cell. Also deletes all widgets over
    /// cells, starting at the first deleted row, and clears the selection.
    virtual void deleteSelectedRows();

    /// Returns a new context menu that contains the standard actions, followed by the actions of
    /// the table (QWidget::actions()). The table owns the menu and deletes it on the next call.
    virtual VKD_QT_Menu* getContextMenu();

    using VKD_QT_TableWidget::edit;

    /// Copies the selected cells to the clipboard as tab-separated text and as HTML.
    void copySelection() const;

Q_SIGNALS:
    /// Emitted after the number of rows has changed.
    void signal_rowCountChanged(int before, int after);

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void rowCountMayHaveChanged();
    void moveRow(int row, int to);
    QString shownText(const QModelIndex& cell) const;
    bool hasActionFor(QKeySequence::StandardKey key) const;
    void openCell();
    const QWidget* widgetOverACell() const;
    void closeCell(const QWidget* widget);
    bool stepInto(QWidget* cell);

    VKD_QT_Menu* m_menu = nullptr;
    int m_rowCount = 0;
    bool m_addsAndDeletes = true;
};
