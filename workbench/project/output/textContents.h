#pragma once

#include <vkd_dbo_model.h>

#include <QStringList>

namespace workbench {

/// A list of the text output with the load cases and combinations for which it is printed.
struct PrintedList
{
    QString name;
    QVector<vkd::dbo::LoadCase> cases; ///< empty for a list that does not depend on load cases
};

/// Returns the table of contents of a text output: each list with a number, and below it the load
/// cases and combinations with their numbers and titles.
QString textContents(const QVector<PrintedList>& lists);

} // namespace workbench
