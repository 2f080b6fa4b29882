#pragma once

#include <exchange/rowTable.h>
#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>

#include <QString>
#include <QStringList>

#include <set>

class VKD_H_ZOBDoc;

namespace workbench {

/// The design parameters of a project as rows, without widgets. The rows are read, changed and
/// written by the same calls, in the same order, as on the design page.
class DesignRows
{
public:
    /// Reads the rows. The document is not owned.
    explicit DesignRows(VKD_H_ZOBDoc* document);

    /// Returns one line per row: groups, type and the three summaries, separated by tabs.
    QString text() const;

    /// Changes fields of the row with exactly these groups. If there is no such row, adds a row and
    /// removes the groups from all other rows. `groups` is "none", "remaining", or a list of
    /// numbers, ranges and names of secondary groups, as in the group dialogs. `fields` are strings
    /// of the form NAME=VALUE with values in base units; the value "unset" clears a field. Throws a
    /// CommandError for an unknown name or an invalid value.
    void setRow(const QString& groups, const QStringList& fields);
    /// Overload for groups that need no parsing: numbers and packed names in ascending order
    /// without duplicates. The other rows are searched only if one of them contains such a group.
    void setRow(const std::vector<int>& groups, const QStringList& fields);

    const plib::DesignRowList& rows() const { return m_data.rows; }
    /// Returns a row with default parameters.
    plib::DesignParameterRow newRow() const;

    /// Applies the rows of a table. Like setRow(), it changes the row with exactly the same groups
    /// or adds a row. Rows without groups are matched by their order. Rows that are not in the
    /// table are preserved. Throws a CommandError that lists all errors in the table.
    void import(const plib::RowTable& table);

    /// Writes the rows to the project. Call it within the transaction in which the rows were read.
    void write();

private:
    std::vector<std::vector<int>> groupsOf(const plib::RowTable& table, QStringList* faults) const;
    plib::DesignParameterRow* findRow(const std::vector<int>& groups);
    plib::DesignParameterRow& rowWithoutGroups(int number);
    plib::DesignParameterRow& rowOf(const std::vector<int>& groups);

    VKD_A_BarDiameterData m_bars;
    plib::DesignParameterData m_data;
    VKD_H_ProjectDialogPage m_page;
    std::set<int> m_namedGroups; // groups in any row; none is removed, as groups only move
    bool m_converted = false;
};

} // namespace workbench
