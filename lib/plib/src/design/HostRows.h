#pragma once

#include <QByteArray>
#include <QObject>
#include <QVector>

class DesignParameter;
class VKD_H_ProjectDialogPage;
class VKD_H_ZOBDoc;

namespace plib {

/// The rows of the design page as hosts see them. Hosts cannot link this class; they use its
/// meta-object, which VKD_P_DesignParameter_Rows.h documents. The object is a child of the page.
class HostRows : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool modified READ isModified WRITE setModified NOTIFY modifiedChanged)

public:
    explicit HostRows(DesignParameter* page);

    bool isModified() const;
    void setModified(bool isModified);
    Q_INVOKABLE QVector<int> groups(int row) const;
    Q_INVOKABLE bool setGroups(int row, const QVector<int>& groups);
    Q_INVOKABLE bool finishEditing();
    Q_INVOKABLE void write(VKD_H_ZOBDoc* document, VKD_H_ProjectDialogPage* page);
    Q_INVOKABLE QByteArray rows() const;
    Q_INVOKABLE bool setRows(const QByteArray& bytes);
    Q_INVOKABLE QByteArray steps() const;
    Q_INVOKABLE bool setSteps(const QByteArray& steps);

    /// Returns whether a host lets the user pick groups.
    bool isPickingPossible() const;

Q_SIGNALS:
    void modifiedChanged(bool isModified);
    void rowsChanged();
    void pickingRequested();

private:
    DesignParameter* m_page;
};

} // namespace plib
