#pragma once

#include "vkd_h_export.h"

#include <QMap>
#include <QString>

/// The texts that a dialog page of the desktop keeps with a project, by key. They are read when the
/// object is made and kept in the project file by save().
class VKD_H_EXPORT VKD_H_ProjectDialogPage
{
public:
    /// The page of this number of the project at this database index. Without a project (index -1)
    /// the texts live as long as the object.
    explicit VKD_H_ProjectDialogPage(int index = -1, int page = 0);

    /// The value of the key, or `defaultValue` if there is none.
    QString getEntry(const QString& key, const QString& defaultValue) const;
    /// Makes an entry or replaces it.
    void setEntry(const QString& key, const QString& value);
    void deleteEntry(const QString& key);

    /// Puts all entries into the project in place of those there. False, with a log line, if the
    /// store refuses or the entries could not be read before. As with all that is put into a taken
    /// pair, whether it is stored is known when the project is closed.
    bool save() const;

private:
    int m_index;
    int m_page;
    QMap<QString, QString> m_entries;
    bool m_isRead = true;
};
