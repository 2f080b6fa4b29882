#pragma once

#include "vkd_a_barArea.h"

#include <VKD_QT_Dialog.h>

class BarAreaTable;
class QGridLayout;
class VKD_A_BarDiameterCombo;
class VKD_H_LineEdit;
class VKD_QT4_ComboBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;
class VKD_QT_Ok;

/// The choice of bars and their spacing for the reinforcement of an area element, with the area
/// that results and a table of usual ones. Spacing and number per metre are two forms of one input:
/// a change of either rewrites the other.
class ReinforcementDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    /// As vkd_a_ReinforcementCalculation().
    ReinforcementDialog(QWidget* parent, int index, float value, float barDiameter);

    /// The area in cm²/m of the bars as they stand; the value that the dialog was opened with, if
    /// they are still those that stood for it.
    float area() const;

private:
    VKD_QT_GroupBox* makeInput(int index);
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
