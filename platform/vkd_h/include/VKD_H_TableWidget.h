#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_TableWidget.h>

class VKD_QT_Menu;

/// The table of the framework: columns with ids (VKD_H_TableItems.h), cells with combo boxes, rows
/// that are added and deleted, a context menu, and the keys that go with them.
///
/// Arrow keys move from cell to cell, and Tab leaves the table. F2 and Enter open the editor of the
/// current cell or step into the widget that lies over it. Pages that lay widgets over cells of
/// their own accord do so as the selection changes; a further F2, Enter or Escape on the cell is
/// reported to them by another itemSelectionChanged().
class VKD_H_EXPORT VKD_H_TableWidget : public VKD_QT_TableWidget
{
    Q_OBJECT

public:
    VKD_H_TableWidget(int rows, int columns, QWidget* parent = nullptr, const char* name = nullptr);
    ~VKD_H_TableWidget() override;

    /// Whether the context menu and the keys Insert and Delete add and delete rows by themselves.
    void setContextmenueEnabled_new_del(bool enabled);

    /// The column with this id, and the id of a column; -1 if there is none.
    int getColumnNumber(int id) const;
    int getColumnId(int column) const;
    /// The item of a row in the column with this id; null if there is none.
    QTableWidgetItem* itemOnColId(int row, int id) const;

    /// Adds a row at the end, with empty items if `withItems` is set.
    virtual void addNewRow(bool withItems);
    /// Gives each cell of a row the empty item of its column.
    virtual void createEmptyItems(int row);
    /// Deletes all rows with a selected cell, in one pass. Widgets over cells from the first of
    /// them on go, too. Nothing is selected afterwards.
    virtual void deleteSelectedRows();

    /// The context menu, made anew with each call. The table owns it and deletes it with the next
    /// one.
    virtual VKD_QT_Menu* getContextMenu();

    using VKD_QT_TableWidget::edit;

    /// Puts the selected cells on the clipboard, as text with tabs and as HTML.
    void copySelection() const;

Q_SIGNALS:
    /// After each change, with the number of rows before and after it.
    void signal_rowCountChanged(int before, int after);

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void rowCountMayHaveChanged();
    void moveRow(int row, int to);
    QString shownText(const QModelIndex& cell) const;
    void openCell();
    const QWidget* widgetOverACell() const;
    void closeCell(const QWidget* widget);
    bool stepInto(QWidget* cell);

    VKD_QT_Menu* m_menu = nullptr;
    int m_rowCount = 0;
    bool m_addsAndDeletes = true;
};
