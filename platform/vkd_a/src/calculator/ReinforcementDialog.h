#pragma once

#include "calculator/AreaPanel.h"

#include <VKD_QT_TabDialog.h>
#include <ZobHandle.h>

class VKD_QT_CheckBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;

/// The dialog that calculates the reinforcement of an area element: from bars and welded fabric, or
/// as the minimum reinforcement of a slab. Each method has its own page, and the current page
/// provides the result.
class ReinforcementDialog : public VKD_QT_TabDialog
{
    Q_OBJECT

public:
    /// Takes the arguments of vkd_a_ReinforcementCalculation(). If `offersDiameter` is true, the
    /// user can apply the bar diameter in addition to the area.
    ReinforcementDialog(QWidget* parent, ZobHandle project, float value, float barDiameter,
                        bool offersDiameter);

    /// Returns the area of the current page in cm²/m. Returns the caller's value instead while the
    /// page still has its initial entries, because rounding must not change a value that the user
    /// has not edited.
    float area() const;

    /// Returns the diameter in mm that the user has chosen to apply, or the initial diameter if
    /// there is none.
    float barDiameter() const;

private:
    VKD_QT_GroupBox* makeResult();
    void connectAll();

    AreaPanel* page() const;
    bool canTakeDiameter(const AreaResult& result) const;
    void showResult();
    QString presentText(const AreaResult& result) const;

    float m_value;
    float m_barDiameter;
    bool m_offersDiameter;
    VKD_QT_Label* m_area = nullptr;
    VKD_QT_Label* m_present = nullptr;
    VKD_QT_Label* m_note = nullptr;
    VKD_QT_CheckBox* m_takesDiameter = nullptr;
};
