#pragma once

#include <QStringList>

#include <functional>

class QWidget;

namespace workbench {

/// Pictures of widgets, as files in a folder. Each name gets the language of the desktop.
class SnapshotAlbum
{
public:
    /// Makes the folder if it is missing.
    explicit SnapshotAlbum(const QString& folder);

    /// The widget as it stands, once everything that is waiting to be done is done. A list that has
    /// dropped down from it is in the picture.
    void add(const QString& name, QWidget* widget);
    /// The dialog that `open` opens, which blocks meanwhile; then `work` may go on with it, and the
    /// dialog is cancelled.
    void addModal(const QString& name, const std::function<void()>& open,
                  const std::function<void(QWidget*)>& work = {});

    const QStringList& files() const { return m_files; }

private:
    QString m_folder;
    QStringList m_files;
};

} // namespace workbench
