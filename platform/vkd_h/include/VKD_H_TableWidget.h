#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TableWidget.h>

class VKD_QT_Menu;

/// The table widget of the framework: columns with ids (VKD_H_TableItems.h), cells with combo
/// boxes, operations that add and delete rows, a context menu and shortcuts.
///
/// Arrow keys move from cell to cell, and Tab leaves the table. F2 and Enter open the editor of the
/// current cell or focus the widget over it. Pages that place their own widgets over cells do so
/// when the selection changes; a further F2, Enter or Escape on the cell emits
/// itemSelectionChanged() again.
class VKD_H_EXPORT VKD_H_TableWidget : public VKD_QT_TableWidget
{
    Q_OBJECT

public:
    VKD_H_TableWidget(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);
    ~VKD_H_TableWidget() override;

    /// Sets whether the context menu and the keys Insert and Delete add and delete rows; the
    /// default is true.
    void setContextmenueEnabled_new_del(bool enabled);

    /// Return the column with this id and the id of a column; -1 if it does not exist.
    int getColumnNumber(int id) const;
    int getColumnId(int column) const;
    /// Returns the item of a row in the column with this id; null if there is none.
    QTableWidgetItem* itemOnColId(int row, int id) const;

    /// Adds a row at the end, with empty items if `withItems` is true.
    virtual void addNewRow(bool withItems);
    /// Sets the empty item of its column in each cell of a row.
    virtual void createEmptyItems(int row);
    /// Deletes all rows with a selected cell in one pass, and all widgets over cells from the first
    /// deleted row on. Clears the selection.
    virtual void deleteSelectedRows();

    /// Returns a new context menu, with the actions of the table (QWidget::actions()) after the
    /// common ones. The table owns it and deletes it in the next call.
    virtual VKD_QT_Menu* getContextMenu();

    using VKD_QT_TableWidget::edit;

    /// Copies the selected cells to the clipboard as tab-separated text and as HTML.
    void copySelection() const;

Q_SIGNALS:
    /// Emitted after the number of rows changed.
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
