#include "cli/DesignRows.h"

#include "cli/CommandLine.h"
#include "project/dialogPages.h"

#include <exchange/groupsText.h>
#include <exchange/patchRows.h>
#include <exchange/rowColumns.h>
#include <record/designEntries.h>
#include <record/designFields.h>
#include <record/designRecord.h>
#include <record/designRows.h>
#include <record/designStore.h>
#include <record/rowText.h>
#include <vkd_dbo_queries.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace workbench {

namespace {

void setInteger(std::int32_t& field, const QString& name, const QString& value)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    const bool fits = name == QLatin1String("type")   ? number >= 0 && number <= 4
                      : name == QLatin1String("mark") ? number == 0 || number == 11
                                                      : true;
    if (!isNumber || !fits)
        throw CommandError{QStringLiteral("%1 cannot be \"%2\"").arg(name, value)};
    field = number;
}

void setReal(float& field, const QString& name, const QString& value)
{
    bool isNumber = true;
    const float number = value == QLatin1String("unset") ? plib::NotSet : value.toFloat(&isNumber);
    if (!isNumber || !std::isfinite(number))
        throw CommandError{QStringLiteral("%1 cannot be \"%2\"").arg(name, value)};
    field = number;
}

void setField(tagZOB_QUAD_RIM& record, const QString& assignment)
{
    const QString name = assignment.section(QLatin1Char('='), 0, 0);
    const auto field = plib::fieldByName(name);
    if (!field || !assignment.contains(QLatin1Char('=')))
        throw CommandError{
            QStringLiteral("\"%1\" does not set a field of a design record").arg(assignment)};
    const QString value = assignment.section(QLatin1Char('='), 1);
    if (field->integer)
        setInteger(record.*field->integer, name, value);
    else
        setReal(record.*field->real, name, value);
}

/// Returns the groups listed in the text, all of which must be known.
std::vector<int> parseGroups(const QString& text, const plib::KnownGroups& known)
{
    const plib::GroupsReading read = plib::readGroupsText(text, known);
    if (!read.isAccepted)
        throw CommandError{QStringLiteral("there is no group \"%1\"").arg(read.missing.value(0))};
    return read.groups;
}

} // namespace

DesignRows::DesignRows(VKD_H_ZOBDoc* document)
    : m_page(document->handle(), DesignDialogPage)
{
    const int index = document->index();
    m_bars.load(index);
    m_data.doc = document;
    m_data.designDoc = document;
    m_data.barData = &m_bars;
    m_data.kindOfSystem = vkd::dbo::getKindOfSystem(index, nullptr);
    plib::readRowsFromZob(m_data);
    plib::readRowsFromEntries(m_data, m_page);
    // The functions that read rows do not return failures. The project was opened for this command,
    // so its last failure occurred while the rows were read.
    const VkdStatus failure = vkd_zob_last_failure(index);
    if (!failure.isOk())
        throw CommandError{failure.reason};
    for (const plib::DesignParameterRow& row : m_data.rows)
        m_namedGroups.insert(row.groups.begin(), row.groups.end());
}

plib::DesignParameterRow DesignRows::newRow() const
{
    return plib::defaultRow(m_data);
}

QString DesignRows::text() const
{
    QString all;
    for (const plib::DesignParameterRow& row : m_data.rows) {
        QStringList columns;
        for (int column = 0; column < 5; ++column)
            columns << plib::rowText(row, column).replace(QLatin1Char('\n'), QLatin1String(" / "));
        all += columns.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return all;
}

/// Returns the row with exactly these groups, or null.
plib::DesignParameterRow* DesignRows::findRow(const std::vector<int>& groups)
{
    const auto mayBeEqual = [&groups](const std::vector<int>& found) {
        return groups.empty() ||
               std::find(found.begin(), found.end(), groups.front()) != found.end();
    };
    // A row from a file may contain a group twice, so sets are compared.
    for (plib::DesignParameterRow& row : m_data.rows)
        if (mayBeEqual(row.groups) && std::set<int>(row.groups.begin(), row.groups.end()) ==
                                          std::set<int>(groups.begin(), groups.end()))
            return &row;
    return nullptr;
}

plib::DesignParameterRow& DesignRows::rowOf(const std::vector<int>& groups)
{
    const bool isNamed = std::any_of(groups.begin(), groups.end(),
                                     [this](int group) { return m_namedGroups.count(group) > 0; });
    if (isNamed || groups.empty()) { // otherwise no other row is affected
        if (plib::DesignParameterRow* row = findRow(groups))
            return *row;
        plib::removeGroups(m_data, groups);
    }
    plib::DesignParameterRow& row = plib::addDefaultRow(m_data);
    row.groups = groups;
    m_namedGroups.insert(groups.begin(), groups.end());
    return row;
}

void DesignRows::setRow(const QString& groups, const QStringList& fields)
{
    setRow(parseGroups(groups, plib::KnownGroups(m_data)), fields);
}

void DesignRows::setRow(const std::vector<int>& groups, const QStringList& fields)
{
    tagZOB_QUAD_RIM& record = rowOf(groups).record;
    for (const QString& field : fields)
        setField(record, field);
}

/// Parses the groups of all rows of the table.
std::vector<std::vector<int>> DesignRows::groupsOf(const plib::RowTable& table,
                                                   QStringList* faults) const
{
    const plib::KnownGroups known(m_data);
    std::vector<std::vector<int>> groupsOfRows;
    std::set<int> named;
    for (const plib::RowPatch& row : table.rows) {
        const auto refuse = [&row, faults](const QString& reason) {
            *faults << QStringLiteral("row %1: %2").arg(QString::number(row.line), reason);
        };
        groupsOfRows.emplace_back();
        try {
            groupsOfRows.back() = parseGroups(row.groups, known);
        } catch (const CommandError& error) {
            refuse(error.text);
        }
        for (int group : groupsOfRows.back())
            if (!named.insert(group).second)
                refuse(QStringLiteral("the groups \"%1\" are also in another row").arg(row.groups));
    }
    return groupsOfRows;
}

/// Returns the row with this index among the rows without groups, counted from 0.
plib::DesignParameterRow& DesignRows::rowWithoutGroups(int number)
{
    for (plib::DesignParameterRow& row : m_data.rows)
        if (row.groups.empty() && number-- == 0)
            return row;
    return plib::addDefaultRow(m_data);
}

void DesignRows::import(const plib::RowTable& table)
{
    QStringList faults = table.faults;
    if (faults.isEmpty() && !table.hasGroups)
        faults << QStringLiteral("there is no column of groups");
    std::vector<std::vector<int>> groups;
    if (faults.isEmpty())
        groups = groupsOf(table, &faults);
    int withoutGroups = 0;
    for (std::size_t i = 0; faults.isEmpty() && i < groups.size(); ++i) {
        plib::DesignParameterRow& row =
            groups[i].empty() ? rowWithoutGroups(withoutGroups++) : rowOf(groups[i]);
        plib::DesignRowList changed{row};
        faults << plib::patchRows({table.rows[i]}, m_data.kindOfSystem, &changed);
        row = changed.front();
    }
    if (!faults.isEmpty())
        throw CommandError{faults.join(QLatin1Char(' '))};
}

void DesignRows::write()
{
    plib::writeRowsToZob(m_data, m_converted);
    plib::writeRowsToEntries(m_data, m_page);
    if (const VkdStatus saved = m_page.save(); !saved.isOk())
        throw CommandError{saved.reason};
}

} // namespace workbench
