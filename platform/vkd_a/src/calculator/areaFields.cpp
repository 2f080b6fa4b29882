#include "calculator/areaFields.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_UnitLabel.h>
#include <vkd_h_units.h>

namespace {
constexpr int BarCode = 1023;
}

VKD_H_LineEdit* newAreaField(QWidget* parent, int code, const QString& suffix, const char* name,
                             const QString& text)
{
    StructLineEdit description = vkd_h_defaultStructLineEdit(code);
    description.minimum = 0.0;
    description.suffix = suffix;
    return new VKD_H_LineEdit(parent, &description, name, text, QString(), true);
}

QString areaText(double area)
{
    return vkd_h_getDimStringFromVal(area, AreaCode, -1) + VKD_H_UnitLabel::dimString(AreaCode, 0);
}

QString lengthText(double millimetres)
{
    return vkd_h_getNumberString(millimetres, -1) + VKD_H_UnitLabel::dimString(BarCode, 0);
}
