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

    /// What the names get behind them from now on.
    void setLook(const QString& look) { m_look = look; }

    /// The widget as it stands, once everything that is waiting to be done is done. A list that has
    /// dropped down from it is in the picture. A window that has no size yet gets all that it
    /// wants, however small the screen is.
    void add(const QString& name, QWidget* widget);
    /// The dialog that `open` opens, which blocks meanwhile, as large as it likes to be; then
    /// `work` may go on with it, and the dialog is cancelled.
    void addModal(const QString& name, const std::function<void()>& open,
                  const std::function<void(QWidget*)>& work = {});

    const QStringList& files() const { return m_files; }

private:
    QString m_folder;
    QString m_look;
    QStringList m_files;
};

} // namespace workbench
