#pragma once

#include "vkd_a_barArea.h"

#include <VKD_QT_Dialog.h>
#include <ZobHandle.h>

class BarAreaTable;
class QGridLayout;
class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT4_ComboBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;
class VKD_QT_Ok;

/// The dialog that calculates the reinforcement of an area element from bars and spacing, with a
/// table of common layouts. The user enters either the spacing or the number per metre; the dialog
/// updates the other field.
class ReinforcementDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// Takes the arguments of vkd_a_ReinforcementCalculation().
    ReinforcementDialog(QWidget* parent, ZobHandle project, float value, float barDiameter);

    /// Returns the area of the current bars in cm²/m. While they are the initial ones, returns the
    /// present value instead, since rounding must not change a value that the user left alone.
    float area() const;

private:
    VKD_QT_GroupBox* makeInput(ZobHandle project);
    VKD_QT_GroupBox* makeTable();
    VKD_QT_GroupBox* makeResult();
    void connectAll();
    void begin(float barDiameter);

    VkdBarLayout layoutOfBars() const;
    void showSpacing(double spacing);
    void showNumber();
    void takeNumber();
    void takeCell(float diameter, double spacing);
    void showResult();
    QString faultText(const VkdBarLayout& layout) const;
    QString presentText(const VkdBarLayout& layout) const;

    float m_value;
    VkdBarLayout m_begin{};
    VKD_A_BarDiameterCombo* m_diameter = nullptr;
    VKD_QT4_ComboBox* m_arrangement = nullptr;
    VKD_H_LineEdit* m_spacing = nullptr;
    VKD_H_LineEdit* m_number = nullptr;
    BarAreaTable* m_table = nullptr;
    VKD_QT_Label* m_area = nullptr;
    VKD_QT_Label* m_present = nullptr;
    VKD_QT_Label* m_note = nullptr;
    VKD_QT_Ok* m_buttons;
};
