#pragma once

#include <QWidget>

/// The result of a page of the calculator.
struct AreaResult
{
    static constexpr float NoDiameter = -99999.0F;

    double area = 0.0;           ///< cm²/m, as stored; valid if `fault` is empty
    QString fault;               ///< reason why there is no area, or empty
    QString note;                ///< warning about the area
    float diameter = NoDiameter; ///< bar diameter in mm
};

/// A page of the calculator: one way to determine the reinforcement of a layer.
class AreaPanel : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual AreaResult result() const = 0;

    /// Returns false while all entries on the page still have their initial values.
    virtual bool isChanged() const { return true; }

Q_SIGNALS:
    void changed();
};
