#pragma once

#include <record/DesignParameterData.h>
#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>

#include <QString>
#include <QStringList>

#include <map>

class VKD_H_ZOBDoc;

namespace workbench {

/// The rows of the design page for a project, without the page. They are read, changed and written
/// by the same functions of the logic.
class DesignRows
{
public:
    /// Reads the rows. The document is not owned.
    explicit DesignRows(VKD_H_ZOBDoc* document);

    /// Returns a line for each row: groups, type and the three summaries, separated by tabs.
    QString text() const;

    /// Changes fields of the row with exactly these groups. If there is none, adds a row and
    /// removes the groups from other rows. `groups` is "none", "remaining", or numbers and names of
    /// secondary groups separated by ";". `fields` are NAME=VALUE in base units, or "unset" for no
    /// value. Throws a CommandError for an invalid name or value.
    void setRow(const QString& groups, const QStringList& fields);

    /// Puts the rows into the project, within the transaction in which they were read.
    void write();

private:
    const std::map<QString, int>& modelGroups() const;
    std::map<QString, int> knownGroups() const;
    std::vector<int> parseGroups(const QString& text) const;
    plib::DesignParameterRow& rowOf(const std::vector<int>& groups);
    void takeFromOthers(const std::vector<int>& groups);

    VKD_H_ZOBDoc* m_document;
    VKD_A_BarDiameterData m_bars;
    plib::DesignParameterData m_data;
    VKD_H_ProjectDialogPage m_page;
    mutable std::map<QString, int> m_modelGroups; // by name; read on first use
    bool m_converted = false;
};

} // namespace workbench
