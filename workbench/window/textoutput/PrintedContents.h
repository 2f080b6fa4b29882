#pragma once

#include "project/output/textContents.h"
#include "window/textoutput/ExtentFields.h"

#include <QCoreApplication>

namespace workbench {

class PickTable;

/// The lists, load cases and combinations that a text output prints, and their description. Loads
/// are printed for load cases, and results for load cases and combinations.
struct PrintedContents
{
    Q_DECLARE_TR_FUNCTIONS(workbench::PrintedContents)

public:
    ExtentFields::Choice extent;
    QVector<int> loadCases;
    QVector<int> combinations;

    /// Returns the lists for the table of contents. Lists without load cases are left out. The
    /// titles are taken from the tables.
    QVector<PrintedList> lists(const PickTable& loadCaseTable,
                               const PickTable& combinationTable) const;

    /// These functions return a line for each of the three. `count` is the number of load cases or
    /// combinations in the project.
    QString extentText() const;
    QString loadCaseText(int count) const;
    QString combinationText(int count) const;
};

} // namespace workbench
