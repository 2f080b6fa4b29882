#include "design/RowParameters.h"

#include "design/DesignParameter.h"
#include "design/patchSelectedRows.h"
#include "exchange/rowParameters.h"
#include "table/DesignParameterTable.h"
#include "VKD_P_DesignParameter_Rows.h"

namespace plib {

RowParameters::RowParameters(DesignParameter* page)
    : QObject(page)
    , m_page(page)
{
    setObjectName(QLatin1String(vkd::plib::designparameter::ParametersObject));
}

QVariantMap RowParameters::current() const
{
    m_page->finishEditing();
    const DesignParameterData& data = m_page->state();
    const int row = data.table->currentRow();
    return row < 0 || row >= int(data.rows.size())
               ? QVariantMap()
               : parametersOf(data.rows[std::size_t(row)].record);
}

QStringList RowParameters::faults(const QVariantMap& parameters) const
{
    RowPatch patch;
    return readParameters(parameters, &patch);
}

QString RowParameters::description(const QVariantMap& parameters) const
{
    return descriptionHtml(describeParameters(parameters), QString());
}

QStringList RowParameters::setInSelectedRows(const QVariantMap& parameters,
                                             const QStringList& stepName)
{
    RowPatch patch;
    const QStringList faults = readParameters(parameters, &patch);
    if (!faults.isEmpty())
        return faults;
    m_page->finishEditing(); // may be a separate undo step
    std::vector<RowPatch> patches;
    for (int row : m_page->state().table->getSelectetRows()) {
        patches.push_back(patch);
        patches.back().line = row + 1;
    }
    return patches.empty() ? QStringList() : patchSelectedRows(m_page, patches, stepName);
}

} // namespace plib
