#pragma once

#include "fields/dialogFields.h"
#include "record/limitPairs.h"

#include <tagZOB_QUAD_RIM.h>

#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>

class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT_GroupBox;

/// Edits the bar diameters and the minimum and maximum reinforcement of one row, with a calculator
/// for each reinforcement field. OK shows an error if a minimum is above its maximum. Only type 3
/// has a third layer. For other types, writeToRecord() sets the fields of this layer to "not set".
class dlgReinforcement : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Shows the values of the record. The dialog offers the bar diameters of the project with this
    /// database index.
    dlgReinforcement(int zobIndex, tagZOB_QUAD_RIM* record, QWidget* parent);

    /// Writes the diameters and the minimum and maximum reinforcement to the record and does not
    /// change other fields.
    void writeToRecord(tagZOB_QUAD_RIM* record) const;

    /// Shows the values of another record, with the fields of its type.
    void showRecord(const tagZOB_QUAD_RIM& record);

    /// Returns the fields that exist for the type of the record.
    plib::DialogFields fields() const;

    /// Returns whether OK would accept the input. If not, shows the reason.
    bool mayAccept();

public Q_SLOTS:
    void calcO();
    void calcU();
    void calcOQ();
    void calcUQ();
    void calcOI();
    void calcUI();
    void calcMaxO();
    void calcMaxU();
    void calcMaxOQ();
    void calcMaxUQ();
    void calcMaxOI();
    void calcMaxUI();
    void accept() override;

private:
    using Combo = VKD_A_BarDiameterCombo* dlgReinforcement::*;
    using Edit = VKD_H_LineEdit* dlgReinforcement::*;
    using Slot = void (dlgReinforcement::*)();
    struct Layer;
    static const Layer Layers[];

    void build(int type);
    VKD_QT_GroupBox* side(bool upper, int type);
    void addLayer(VKD_QT_GroupBox* box, int row, const Layer& layer, const QString& text);
    VKD_H_LineEdit* newEdit(const char* name, const QString& text);
    void addCalculator(VKD_QT_GridLayout* grid, int row, int column, Slot slot,
                       const QString& about);
    void showValues(const tagZOB_QUAD_RIM& record);
    bool showsFault(const plib::LimitPair& pair, float minimum, float maximum);
    void markPair(plib::RealField minimum);
    bool checkMinMax(float minimum, float maximum);
    void calculate(Combo combo, Edit edit);

    int zobIndex;
    VKD_A_BarDiameterCombo* m_pDIO = nullptr;
    VKD_A_BarDiameterCombo* m_pDIU = nullptr;
    VKD_A_BarDiameterCombo* m_pDIOQ = nullptr;
    VKD_A_BarDiameterCombo* m_pDIUQ = nullptr;
    VKD_A_BarDiameterCombo* m_pDIOI = nullptr;
    VKD_A_BarDiameterCombo* m_pDIUI = nullptr;
    VKD_H_LineEdit* aso = nullptr;
    VKD_H_LineEdit* asu = nullptr;
    VKD_H_LineEdit* asoq = nullptr;
    VKD_H_LineEdit* asuq = nullptr;
    VKD_H_LineEdit* asoi = nullptr;
    VKD_H_LineEdit* asui = nullptr;
    VKD_H_LineEdit* amo = nullptr;
    VKD_H_LineEdit* amu = nullptr;
    VKD_H_LineEdit* amoq = nullptr;
    VKD_H_LineEdit* amuq = nullptr;
    VKD_H_LineEdit* amoi = nullptr;
    VKD_H_LineEdit* amui = nullptr;
};
