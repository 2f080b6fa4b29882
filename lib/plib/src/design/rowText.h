#pragma once

#include "DesignParameterData.h"

#include <QString>
#include <QStringList>

namespace plib {

/// The names of the design types, untranslated, by number.
constexpr const char* DesignTypeNames[] = {
    QT_TRANSLATE_NOOP("DesignParameter", "No design"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers (orthogonal)"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Three Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Circular"),
};

/// The text that sums up one column of a row for reading: 0 groups, 1 type, 2 directions and
/// distances, 3 reinforcement, 4 crack control; up to two lines. Empty for any other column, and in
/// columns 2 to 4 for a type that has no design.
QString rowText(const DesignParameterRow& row, int column);

/// The text of one value in base units: " - " if it is not set, a bar for code 1023, else the
/// number in the user's unit with `unit` right behind.
QString valueText(const DesignParameterRow& row, float value, int code, const QString& unit);

/// A group number as text; that of a secondary group is its name.
QString groupText(int group);

} // namespace plib
