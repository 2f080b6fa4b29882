#pragma once

#include "record/designFields.h"
#include "record/DesignParameterData.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>

namespace plib {

/// A line of the description of a row: the name of a value, its text and its unit. A value that
/// both sides have is shown as two texts, first for the upper side.
struct DescriptionLine
{
    QString name;
    QStringList values;
    QString unit;
};

/// The titles of groups, with group numbers as in a group list.
using GroupTitles = QHash<int, QString>;

/// Describes a row in the desktop language: its groups with their titles, its type, and all values
/// that the dialogs for its type contain. Values that are not set on either side are left out, and
/// so are all values of a row without design.
std::vector<DescriptionLine> describeRow(const DesignParameterRow& row, const GroupTitles& titles);

/// Describes the values of a record for which `isShown` returns true, even if they are not set.
std::vector<DescriptionLine> describeValues(const tagZOB_QUAD_RIM& record,
                                            const std::function<bool(RealField)>& isShown);

/// Returns a description as a table in rich text. `note` is plain text that is shown below the
/// table; it may be empty.
QString descriptionHtml(const std::vector<DescriptionLine>& lines, const QString& note);

} // namespace plib
