#pragma once

#include <QString>

class QWidget;
class VKD_H_LineEdit;

constexpr int AreaCode = 1021;     ///< dimension of areas in cm²/m
constexpr int DistanceCode = 1024; ///< dimension of distances

/// Creates a number field that accepts zero, so that the calculator itself can explain why zero is
/// invalid. A non-empty `suffix` replaces the unit of the dimension `code`.
VKD_H_LineEdit* newAreaField(QWidget* parent, int code, const QString& suffix, const char* name,
                             const QString& text);

/// Returns the text for an area in cm²/m, including the unit.
QString areaText(double area);

/// Returns the text for a length in mm, including the unit.
QString lengthText(double millimetres);
