#pragma once

#include <QWidget>

/// The result of a page of the calculator.
struct AreaResult
{
    static constexpr float NoDiameter = -99999.0F;

    double area = 0.0;           ///< cm²/m, as it is stored; valid without a fault
    QString fault;               ///< why there is no area; empty if there is one
    QString note;                ///< a warning about the area
    float diameter = NoDiameter; ///< of the bars in mm
};

/// A page of the calculator: one way to determine the reinforcement of a layer.
class AreaPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual AreaResult result() const = 0;

    /// Returns false while the entries are those from which the page began.
    virtual bool isChanged() const { return true; }

Q_SIGNALS:
    void changed();
};
