#pragma once

#include "vkd_h_export.h"

#include <QString>

#include <list>

/// What an input field for a number is for: its dimension, the values that may be typed and how
/// they are written. Values and limits are in the base unit of the dimension (vkd_h_units.h). The
/// limits bind the user's text only; a field shows and gives back whatever value it is set to. They
/// are compared in single precision, as records hold it.
struct StructLineEdit
{
    static constexpr int RealNumber = 2;
    static constexpr int EmptyAllowed = 2048;
    static constexpr int TextForPrograms = 0x200000; ///< numbers have a point in every language,
                                                     ///< and a text stays as it was typed

    int kind = RealNumber;          ///< RealNumber is the only one there is
    int dimension = -1;             ///< dimension code, -1 for a number without unit
    double value = -99999.0;        ///< what the field starts with
    double maximum = 99999.0;       ///< greatest value that may be typed
    double notSet = -99999.0;       ///< stands for "not set"; never typed, shown as an empty field
    double minimum = -99998.0;      ///< smallest value that may be typed
    int flags = EmptyAllowed;       ///< without EmptyAllowed the user cannot empty the field
    QString prefix;                 ///< stands in front of the number, as "Ø"
    QString decimalSigns;           ///< characters read as the decimal sign beside dot and comma
    QString suffix;                 ///< stands behind the number; empty: the unit of the dimension
    std::list<QString> notSetTexts; ///< texts, without outer blanks, that also read as "not set"
    double emptied = -99999.0;      ///< what an emptied field gets, by StructBoxedEdit's flag
    int reservedA = 0;              ///< 0 is to be passed
    int reservedB = -1;             ///< -1 is to be passed
};

/// The description of a field for this dimension code, empty at first and allowed to be. Directions
/// and coordinates may be negative; reinforcement, bar diameter, distance, crack width and stress
/// may not. Any other code gives a number without unit.
VKD_H_EXPORT StructLineEdit vkd_h_defaultStructLineEdit(int code);
