#pragma once

#include "record/DesignParameterData.h"

#include <VKD_A_BarDiameterData.h>

#include <QWidget>

#include <memory>
#include <set>

class QTableWidgetItem;
class VKD_H_ProjectDialogPage;
class VKD_H_TableWidgetBox;
class VKD_QT_Dialog;

namespace plib {
class TableSelection;
enum class RowsStep;
} // namespace plib

/// The implementation of the design parameter page, which is used only by the exported class. The
/// rows in `data` are the model: an edit first changes a row, after which the texts of the row are
/// written to the table. A cell has an editor only while it is the current cell.
class DesignParameter : public QWidget
{
    Q_OBJECT

public:
    DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                    bool flagB);
    ~DesignParameter() override;

    /// Sets the dialog that is closed when the user wants to pick groups in the 3D view. It may be
    /// null.
    void setDialog(VKD_QT_Dialog* dialog);
    void init();
    void readZob();
    void writeToZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);
    void setEntrys(VKD_H_ProjectDialogPage& page);
    bool checkVals();

    // Used by the objects that implement undo, the clipboard and the editing of rows.
    plib::DesignParameterData& state() { return *data; }
    bool isConverted() const { return converted; }
    /// Commits the selection in an open list of types.
    void finishEditing();
    /// Updates the texts of rows whose parameters have changed.
    void refresh(const std::set<int>& rows);
    /// Sets the type of rows in one step.
    void setType(const std::set<int>& rows, int type);
    /// Sets the groups of a row in one step, and reports groups that are also in other rows.
    void takeGroups(int row, const std::vector<int>& groups);
    /// These functions open the dialogs for the current row or the selected rows.
    void editDirections() { slot_editButtonClicked(); }
    void editReinforcement() { slot_calcReinforcementButtonClicked(); }
    void editCrackControl() { slot_calcCrackButtonClicked(); }
    /// Shows a message beside the buttons until the next step.
    void showNotice(const QString& text);
    /// Returns the focus to the table after a dialog, so that the user can continue with the next
    /// cell by keyboard.
    void focusTable();
    /// Replaces `count` rows starting at `first` and selects these cells.
    void replaceRows(int first, int count, const std::vector<plib::DesignParameterRow>& by,
                     const plib::TableSelection& selection);

Q_SIGNALS:
    void signal_rowCountChanged(int rowCount);

public Q_SLOTS:
    void help_clicked();

private Q_SLOTS:
    void slot_typComboChanged(QTableWidgetItem* item);
    void slot_newRowClicked();
    void slot_deleteClicked();
    void slot_editButtonClicked();
    void slot_calcReinforcementButtonClicked();
    void slot_calcCrackButtonClicked();
    void slot_openGroups();
    void slot_openSekGroups();
    void slot_editCellWidget();
    void slot_up();
    void slot_down();
    void slot_selectionComboChanged(QString text);
    void slot_onReopenGroups();
    void slot_onReopenGroupsSecondary();

private:
    VKD_H_TableWidgetBox* buildBox();
    void connectTable();
    void addTableRow();
    void setTableRowCount(int count, int first);
    void restartHistory();
    void drawRow(const plib::DesignParameterRow& row, int number, bool isNew);
    void refreshRows(int number);
    void swapRows(int row, int other);
    bool isRow(int row) const;
    void closeCellWidget();
    bool hasFocusInEditor() const;
    void makeEditedCellCurrent();
    void followCurrentCell();
    void pickBesidePage(int row);
    void layOver(int row, int column, QWidget* editor);
    void clearCellWidget(int row, int column);
    void openSelection(int row, int column, plib::DesignParameterRow& shown);
    void openButton(int row, int column, QTableWidgetItem* item);
    template <class Dialog, typename... Arguments>
    void editRecord(plib::RowsStep name, Arguments... arguments);
    void showSharedGroups();
    void showSharedGroupsInEditor(int row);

    std::unique_ptr<plib::DesignParameterData> data;
    int editRow = 0;
    int editColumn = 0;
    bool converted = false;
    VKD_A_BarDiameterData barTable;
};
