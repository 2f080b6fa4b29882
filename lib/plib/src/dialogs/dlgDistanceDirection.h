#pragma once

#include "fields/dialogFields.h"

#include <tagZOB_QUAD_RIM.h>

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>

class VKD_H_LineEdit;
class VKD_QT_GroupBox;

/// Edits the position of the reinforcement layers of one row: their directions, their distances
/// and, for circular reinforcement, the reference point. The type of the record determines the line
/// edits in the dialog. writeToRecord() sets fields without a line edit to "not set". Values are
/// not checked.
class dlgDistanceDirection : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Shows the values of the record, whose distances must be in the edited form.
    dlgDistanceDirection(tagZOB_QUAD_RIM* record, QWidget* parent);

    /// Writes the directions, distances and reference point to the record and does not change other
    /// fields.
    void writeToRecord(tagZOB_QUAD_RIM* record) const;

    /// Shows the values of another record, with the fields of its type.
    void showRecord(const tagZOB_QUAD_RIM& record);

    /// Returns the fields that exist for the type of the record.
    plib::DialogFields fields() const;

private:
    using Edit = VKD_H_LineEdit* dlgDistanceDirection::*;
    struct Field;
    static const Field Fields[];

    void build(int type);
    int builtType() const;
    VKD_QT_GroupBox* layeredDirection(int type);
    VKD_QT_GroupBox* layeredDistance(int type);
    VKD_QT_GroupBox* circular();
    VKD_QT_GroupBox* midpoint();
    VKD_QT_GridLayout* newGrid(const QString& title, const char* name, VKD_QT_GroupBox** box);
    void addHeader(VKD_QT_GridLayout* grid);
    void addRow(VKD_QT_GridLayout* grid, int row, const QString& text, Edit upper, Edit lower);
    void addNote(VKD_QT_GridLayout* grid);
    static QString textOf(int code);
    VKD_H_LineEdit* newEdit(Edit edit);

    VKD_H_LineEdit* hio = nullptr;
    VKD_H_LineEdit* hiu = nullptr;
    VKD_H_LineEdit* hioq = nullptr;
    VKD_H_LineEdit* hiuq = nullptr;
    VKD_H_LineEdit* hioi = nullptr;
    VKD_H_LineEdit* hiui = nullptr;
    VKD_H_LineEdit* rio = nullptr;
    VKD_H_LineEdit* riu = nullptr;
    VKD_H_LineEdit* rioq = nullptr;
    VKD_H_LineEdit* riuq = nullptr;
    VKD_H_LineEdit* rioi = nullptr;
    VKD_H_LineEdit* riui = nullptr;
    VKD_H_LineEdit* xref = nullptr;
    VKD_H_LineEdit* yref = nullptr;
    VKD_H_LineEdit* zref = nullptr;
};
