#pragma once

#include <QString>

class QWidget;
class VKD_H_LineEdit;

/// Creates a number field that accepts zero, so that the calculator itself explains why zero is
/// wrong. `suffix` replaces the unit of the dimension `code` if it is not empty.
VKD_H_LineEdit* newAreaField(QWidget* parent, int code, const QString& suffix, const char* name,
                             const QString& text);

/// Returns an area in cm²/m with its unit.
QString areaText(double area);

/// Returns a length in mm with its unit.
QString lengthText(double millimetres);
