#pragma once

#include <QStringList>
#include <QVariantMap>

class QTableWidget;
class VKD_P_DesignParameter;

namespace workbench {

/// Calls the functions with which the design page reads and sets parameters of its rows (see
/// docs/embedding.md).
class PageParameters
{
public:
    /// `page` must be initialised. It is not owned and must outlive the object.
    explicit PageParameters(const VKD_P_DesignParameter* page);

    QTableWidget* table() const { return m_table; }
    /// Returns the number of rows with selected cells.
    int selectedRowCount() const;

    QVariantMap current() const;
    QStringList faults(const QVariantMap& parameters) const;
    QString description(const QVariantMap& parameters) const;
    QStringList setInSelectedRows(const QVariantMap& parameters, const QStringList& stepName) const;

private:
    QObject* m_object;
    QTableWidget* m_table;
};

} // namespace workbench
