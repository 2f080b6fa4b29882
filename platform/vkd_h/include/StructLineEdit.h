#pragma once

#include "vkd_h_export.h"

#include <QString>

#include <list>

/// The description of a number field: dimension, limits and format. Values and limits are in the
/// base unit of the dimension (vkd_h_units.h). The limits apply only to user input; code can set
/// and get any value. Limits are compared in single precision, because records store values in
/// single precision.
struct StructLineEdit
{
    static constexpr int RealNumber = 2;
    static constexpr int EmptyAllowed = 2048;
    static constexpr int TextForPrograms = 0x200000; ///< numbers have a decimal point in every
                                                     ///< language, and text is kept as typed

    int kind = RealNumber;          ///< must be RealNumber
    int dimension = -1;             ///< dimension code, or -1 for a number without a unit
    double value = -99999.0;        ///< initial value
    double maximum = 99999.0;       ///< greatest value that the user can enter
    double notSet = -99999.0;       ///< "not set"; cannot be entered, shown as an empty field
    double minimum = -99998.0;      ///< smallest value that the user can enter
    int flags = EmptyAllowed;       ///< without EmptyAllowed the user cannot empty the field
    QString prefix;                 ///< shown before the number, for example "Ø"
    QString decimalSigns;           ///< decimal separators accepted in addition to point and comma
    QString suffix;                 ///< shown after the number; if empty, the unit of the dimension
    std::list<QString> notSetTexts; ///< strings that also mean "not set", trimmed
    double emptied = -99999.0;      ///< value of a cleared field; see StructBoxedEdit
    int reservedA = 0;              ///< must be 0
    int reservedB = -1;             ///< must be -1
};

/// Returns the description of a field for this dimension code. The field is initially empty, and
/// the user may clear it. Directions and coordinates may be negative; reinforcement, bar diameter,
/// distance, crack width and stress may not. For any other code, the field contains a number
/// without a unit.
VKD_H_EXPORT StructLineEdit vkd_h_defaultStructLineEdit(int code);
