#pragma once

#include "vkd_h_export.h"

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QMap>
#include <QString>

/// The key-value texts that a dialog page saves in a project. The constructor reads them; save()
/// writes them into the project file.
class VKD_H_EXPORT VKD_H_ProjectDialogPage
{
public:
    /// Reads the texts of a page, given by number, from the project. Without a project the texts
    /// live as long as the object.
    explicit VKD_H_ProjectDialogPage(ZobHandle project = ZobHandle(), int page = 0);

    /// Returns the value of the key, or `defaultValue` if the key does not exist.
    QString getEntry(const QString& key, const QString& defaultValue) const;
    /// Adds or replaces an entry.
    void setEntry(const QString& key, const QString& value);
    void deleteEntry(const QString& key);

    /// Replaces the entries in the project, completely or not at all. If they could not be read
    /// before, nothing is stored and the status is that of reading. Within a change of the caller,
    /// they are stored when the change ends, see ZobTransaction::commit().
    VkdStatus save() const;

private:
    ZobHandle m_project;
    int m_page;
    QMap<QString, QString> m_entries;
    VkdStatus m_readStatus;
};
