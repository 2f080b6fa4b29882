#include "window/presets/PageParameters.h"

#include <VKD_P_DesignParameter>
#include <VKD_P_DesignParameter_Rows.h>

#include <QSet>
#include <QTableWidget>

namespace workbench {

PageParameters::PageParameters(const VKD_P_DesignParameter* page)
    : m_object(
          page->findChild<QObject*>(QLatin1String(vkd::plib::designparameter::ParametersObject)))
    , m_table(page->findChild<QTableWidget*>(QStringLiteral("table")))
{
}

int PageParameters::selectedRowCount() const
{
    QSet<int> rows;
    const QModelIndexList cells = m_table->selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : cells)
        rows.insert(cell.row());
    return rows.size();
}

QVariantMap PageParameters::current() const
{
    QVariantMap parameters;
    QMetaObject::invokeMethod(m_object, "current", Q_RETURN_ARG(QVariantMap, parameters));
    return parameters;
}

QStringList PageParameters::faults(const QVariantMap& parameters) const
{
    QStringList faults;
    QMetaObject::invokeMethod(m_object, "faults", Q_RETURN_ARG(QStringList, faults),
                              Q_ARG(QVariantMap, parameters));
    return faults;
}

QString PageParameters::description(const QVariantMap& parameters) const
{
    QString text;
    QMetaObject::invokeMethod(m_object, "description", Q_RETURN_ARG(QString, text),
                              Q_ARG(QVariantMap, parameters));
    return text;
}

QStringList PageParameters::setInSelectedRows(const QVariantMap& parameters,
                                              const QStringList& stepName) const
{
    QStringList faults;
    QMetaObject::invokeMethod(m_object, "setInSelectedRows", Q_RETURN_ARG(QStringList, faults),
                              Q_ARG(QVariantMap, parameters), Q_ARG(QStringList, stepName));
    return faults;
}

} // namespace workbench
