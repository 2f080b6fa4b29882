#pragma once

#include <QObject>
#include <QVariantMap>

class DesignParameter;

namespace plib {

/// The parameters of rows as hosts see them. Hosts cannot link this class; they use its
/// meta-object, which VKD_P_DesignParameter_Rows.h documents. rowParameters.h describes the maps.
/// The object is a child of the page.
class RowParameters : public QObject
{
    Q_OBJECT

public:
    explicit RowParameters(DesignParameter* page);

    Q_INVOKABLE QVariantMap current() const;
    Q_INVOKABLE QStringList faults(const QVariantMap& parameters) const;
    Q_INVOKABLE QString description(const QVariantMap& parameters) const;
    Q_INVOKABLE QStringList setInSelectedRows(const QVariantMap& parameters,
                                              const QStringList& stepName);
    /// Has a name that is not translated.
    Q_INVOKABLE QStringList setInSelectedRows(const QVariantMap& parameters,
                                              const QString& stepName)
    {
        return setInSelectedRows(parameters, QStringList(stepName));
    }

private:
    DesignParameter* m_page;
};

} // namespace plib
