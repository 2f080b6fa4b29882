#pragma once

#include <record/DesignParameterData.h>
#include <VKD_A_BarDiameterData.h>
#include <VKD_H_ProjectDialogPage.h>

#include <QString>
#include <QStringList>

#include <map>

class VKD_H_ZOBDoc;

namespace workbench {

/// The design parameters of a project as the rows of the design page, without the page: read,
/// changed and written in the same order of calls.
class DesignRows
{
public:
    /// Reads the rows. The document is not owned.
    explicit DesignRows(VKD_H_ZOBDoc* document);

    /// A line for each row: groups, type and the three summaries with tabs between them.
    QString text() const;

    /// Changes fields of the row with just these groups, or of a new one, which takes its groups
    /// from the rows that had them. `groups` is "none", "remaining", or numbers and names of
    /// secondary groups with ";" between them; `fields` are NAME=VALUE in base units, "unset" for
    /// no value. Throws a CommandError for a name or a value that does not fit.
    void setRow(const QString& groups, const QStringList& fields);

    /// Puts the rows into the project; to be called within the transaction in which they were read.
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
    mutable std::map<QString, int> m_modelGroups; // by name; read when first asked for
    bool m_converted = false;
};

} // namespace workbench
