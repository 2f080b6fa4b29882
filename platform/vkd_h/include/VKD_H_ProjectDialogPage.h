#pragma once

#include "vkd_h_export.h"

#include <vkd_status.h>
#include <ZobHandle.h>

#include <QMap>
#include <QString>

/// The key-value entries that a dialog page saves in a project. The constructor reads the entries,
/// and save() writes them to the project file.
class VKD_H_EXPORT VKD_H_ProjectDialogPage
{
public:
    /// Reads the entries of the page with the given number from the project. Without a project, the
    /// entries exist only in this object.
    explicit VKD_H_ProjectDialogPage(ZobHandle project = ZobHandle(), int page = 0);
    /// Returns whether the constructor could read the entries.
    const VkdStatus& readStatus() const { return m_readStatus; }

    /// Returns the value of the key, or `defaultValue` if the key does not exist.
    QString getEntry(const QString& key, const QString& defaultValue) const;
    /// Adds or replaces an entry.
    void setEntry(const QString& key, const QString& value);
    void deleteEntry(const QString& key);

    /// Replaces the entries in the project atomically. If the constructor could not read them,
    /// nothing is stored, and the status of the failed read is returned. Within a change begun by
    /// the caller, the entries are stored when the change ends; see ZobTransaction::commit().
    VkdStatus save() const;

private:
    ZobHandle m_project;
    int m_page;
    QMap<QString, QString> m_entries;
    VkdStatus m_readStatus;
};
