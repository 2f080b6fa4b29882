#pragma once

#include "calculator/AreaPanel.h"

#include <VKD_QT_TabDialog.h>
#include <ZobHandle.h>

class VKD_QT_CheckBox;
class VKD_QT_GroupBox;
class VKD_QT_Label;

/// The dialog that calculates the reinforcement of an area element: from bars and welded fabric, or
/// as the minimum of a slab. Each way is a page; the current page gives the result.
class ReinforcementDialog : public VKD_QT_TabDialog
{
    Q_OBJECT

public:
    /// Takes the arguments of vkd_a_ReinforcementCalculation(). With `offersDiameter`, the user can
    /// take over the bar diameter besides the area.
    ReinforcementDialog(QWidget* parent, ZobHandle project, float value, float barDiameter,
                        bool offersDiameter);

    /// Returns the area of the current page in cm²/m. While its entries are the initial ones,
    /// returns the present value instead, since rounding must not change a value that the user left
    /// alone.
    float area() const;

    /// Returns the diameter in mm that the user takes over, or else the one at the beginning.
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
