#pragma once

#include <QObject>
#include <QVector>
#include <QWidget>

/// Sets the transient parent, called the host, of a window that has no parent widget. Only the
/// window system uses this relation: a modal dialog does not block its transient children, and the
/// host can change while the window is open. A change to the parent widget would create a new
/// native window.
///
/// A modal dialog that would block the window becomes its host. When the dialog closes, the
/// dialog's own parent window becomes the host. The window closes when its last host closes.
class TransientParent : public QObject
{
    Q_OBJECT

public:
    /// `window` becomes the owner of this object.
    explicit TransientParent(QWidget* window);

    /// Makes the active modal dialog the host. If there is none, the window of `widget`, which may
    /// be null, becomes the host.
    void follow(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHost(QWidget* host);
    void applyHost();
    void followModal();
    void drop(QWidget* gone);
    void forget(QWidget* window);

    QWidget* m_window;
    /// The host and its chain of parent windows. The chain is stored because the windows may be
    /// destroyed together, in which case their parents can no longer be queried.
    QVector<QWidget*> m_hosts;
};
