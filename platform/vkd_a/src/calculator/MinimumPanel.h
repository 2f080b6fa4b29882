#pragma once

#include "calculator/AreaPanel.h"
#include "vkd_a_minimumReinforcement.h"

class QGridLayout;
class VKD_H_LineEdit;
class VKD_QT4_ComboBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;

/// The page of the calculator for the minimum reinforcement of slabs. It shows each formula with
/// its clause and values, so that the user can check the formula and copy it into a calculation.
class MinimumPanel : public AreaPanel
{
    Q_OBJECT

public:
    explicit MinimumPanel(QWidget* parent);

    AreaResult result() const override;

private:
    enum Direction { Principal = 1, Secondary };

    VKD_QT_GroupBox* makeInput();
    VKD_QT_GroupBox* makeFormulas();
    void connectAll();

    bool isSecondary() const;
    VkdMinimumReinforcement minimum() const;
    double principalArea() const;
    QString formulas() const;
    QString strengthFormula() const;
    QString secondaryFormula() const;
    void showFormulas();

    VKD_H_LineEdit* m_depth = nullptr;
    VKD_QT4_ComboBox* m_concrete = nullptr;
    VKD_QT4_ComboBox* m_steel = nullptr;
    VKD_QT4_ComboBox* m_direction = nullptr;
    VKD_H_LineEdit* m_principal = nullptr;
    VKD_QT_Label* m_formulas = nullptr;
};
