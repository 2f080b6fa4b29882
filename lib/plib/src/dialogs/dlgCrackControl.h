#pragma once

#include "fields/dialogFields.h"

#include <tagZOB_QUAD_RIM.h>

#include <VKD_QT_Dialog.h>

class VKD_QT4_ComboBox;
class VKD_QT_GroupBox;

/// Edits the permissible crack widths and steel stresses of one row. The lists contain common
/// values. The user can type any other value; values are not checked. Only type 3 has a third
/// layer. For other types, writeToRecord() sets the fields of this layer to "not set".
class dlgCrackControl : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Shows the values of the record.
    dlgCrackControl(tagZOB_QUAD_RIM* record, QWidget* parent);

    /// Writes the crack widths and steel stresses to the record and does not change other fields.
    void writeToRecord(tagZOB_QUAD_RIM* record) const;

    /// Shows the values of another record, with the fields of its type.
    void showRecord(const tagZOB_QUAD_RIM& record);

    /// Returns the fields that exist for the type of the record.
    plib::DialogFields fields() const;

    /// Returns which of the values the table does not show for rows of this type.
    static QString note(int type);

    void accept() override;

private:
    using Combo = VKD_QT4_ComboBox* dlgCrackControl::*;
    struct Field;
    static const Field Fields[];

    void build();
    VKD_QT_GroupBox* side(bool upper);
    VKD_QT4_ComboBox* newCombo(const Field& field);

    int type;
    VKD_QT4_ComboBox* m_pWKO = nullptr;
    VKD_QT4_ComboBox* m_pWKOQ = nullptr;
    VKD_QT4_ComboBox* m_pWKOI = nullptr;
    VKD_QT4_ComboBox* m_pWKU = nullptr;
    VKD_QT4_ComboBox* m_pWKUQ = nullptr;
    VKD_QT4_ComboBox* m_pWKUI = nullptr;
    VKD_QT4_ComboBox* m_pSIGO = nullptr;
    VKD_QT4_ComboBox* m_pSIGOQ = nullptr;
    VKD_QT4_ComboBox* m_pSIGOI = nullptr;
    VKD_QT4_ComboBox* m_pSIGU = nullptr;
    VKD_QT4_ComboBox* m_pSIGUQ = nullptr;
    VKD_QT4_ComboBox* m_pSIGUI = nullptr;
};
