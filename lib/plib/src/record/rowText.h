#pragma once

#include "record/DesignParameterData.h"

#include <QString>
#include <QStringList>

namespace plib {

/// The untranslated names of the design types, indexed by type.
constexpr const char* DesignTypeNames[] = {
    QT_TRANSLATE_NOOP("DesignParameter", "No design"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers (orthogonal)"),
    QT_TRANSLATE_NOOP("DesignParameter", "Two Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Three Layers"),
    QT_TRANSLATE_NOOP("DesignParameter", "Circular"),
};

/// The untranslated texts of the groups column for rows without groups and for the remaining
/// groups.
constexpr const char* NoGroupsText = QT_TRANSLATE_NOOP("DesignParameter", "None");
constexpr const char* RemainingGroupsText =
    QT_TRANSLATE_NOOP("DesignParameter", "Remaining Groups");

/// Returns a summary of one or two lines for a column of the row. The columns are 0 for groups, 1
/// for the type, 2 for directions and distances, 3 for reinforcement and 4 for crack control.
/// Returns an empty string for other columns, and in columns 2 to 4 for a type without design.
QString rowText(const DesignParameterRow& row, int column);

/// Returns the text of a value in base units: " - " if the value is not set, the name of a bar for
/// dimension code 1023, otherwise the number in the displayed unit, followed by `unit`.
QString valueText(const DesignParameterRow& row, float value, int code, const QString& unit);

/// Returns a summary with invisible characters that allow line breaks only after " ;", so that no
/// value is separated from its unit. Used for painting; the text of the cell does not change.
QString withBreaksBetweenValues(const QString& summary);

} // namespace plib
