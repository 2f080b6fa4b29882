#pragma once

#include "DesignParameterData.h"

#include <VKD_A_BarDiameterData.h>

#include <QWidget>

#include <memory>

class QTableWidgetItem;
class VKD_H_ProjectDialogPage;
class VKD_H_TableWidgetBox;
class VKD_QT_Dialog;

/// The design parameter page itself, behind the exported shell. Its rows are the truth: an edit
/// goes into a row first, and the row's texts are then drawn into the table. The editor of a cell
/// lives while its cell is the current one.
class DesignParameter : public QWidget
{
    Q_OBJECT

public:
    DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc, QWidget* parent, bool flagA,
                    bool flagB);
    ~DesignParameter() override;

    /// The dialog that a detour to pick groups outside of it closes; null if there is none.
    void setDialog(VKD_QT_Dialog* dialog);
    void init();
    void readZob();
    void writeToZob();
    void getEntrys(VKD_H_ProjectDialogPage& page);
    void setEntrys(VKD_H_ProjectDialogPage& page);
    bool checkVals();

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
    void drawRow(const plib::DesignParameterRow& row, int number, bool isNew);
    void refreshRows(int number);
    void swapRows(int row, int other);
    bool isRow(int row) const;
    void finishEditing();
    void closeCellWidget();
    bool hasFocusInEditor() const;
    void makeEditedCellCurrent();
    void layOver(int row, int column, QWidget* editor);
    void clearCellWidget(int row, int column);
    void openSelection(int row, int column, plib::DesignParameterRow& shown);
    void openButton(int row, int column, QTableWidgetItem* item);
    template <class Dialog, typename... Arguments>
    void editRecord(Arguments... arguments);
    void takeGroups(int row, const std::vector<int>& groups);
    void showSharedGroups();
    void showSharedGroupsInEditor(int row);

    std::unique_ptr<plib::DesignParameterData> data;
    int editRow = 0;
    int editColumn = 0;
    bool converted = false;
    VKD_A_BarDiameterData barTable;
};
