#pragma once

#include <QObject>
#include <QVariantMap>

class DesignParameter;

namespace plib {

/// Provides the parameters of rows to hosts, which find this child of the page by its object name
/// "rowParameters" and call its functions through the meta object. rowParameters.h describes the
/// maps.
class RowParameters : public QObject
{
    Q_OBJECT

public:
    explicit RowParameters(DesignParameter* page);

    /// Returns all parameters of the current row, or an empty map if there is none.
    Q_INVOKABLE QVariantMap current() const;
    /// Returns a message for each parameter that is unknown or would not be accepted.
    Q_INVOKABLE QStringList faults(const QVariantMap& parameters) const;
    /// Returns the parameters as a table in rich text.
    Q_INVOKABLE QString description(const QVariantMap& parameters) const;
    /// Sets the parameters in all selected rows as a single undo step with this name. Other
    /// parameters and the groups do not change. If there are faults, returns them and changes
    /// nothing.
    Q_INVOKABLE QStringList setInSelectedRows(const QVariantMap& parameters,
                                              const QString& stepName);

private:
    DesignParameter* m_page;
};

} // namespace plib
