#pragma once

#include <QObject>
#include <QVector>
#include <QWidget>

/// Sets the transient parent of a parentless window, its host. Only the window system sees this
/// relation: a modal dialog does not block its transient children, and the host can change while
/// the window is open. A change of the widget's parent would create a new native window.
///
/// A modal dialog that would block the window becomes its host. When the dialog closes, the next
/// host is the window that the dialog belongs to. The window closes with its last host.
class TransientParent : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the owner of this object.
    explicit TransientParent(QWidget* window);

    /// Makes the active modal dialog the host, or else the window of `widget`, which may be null.
    void follow(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHost(QWidget* host);
    void applyHost();
    void followModal();
    void drop(QWidget* gone);
    void forget(QWidget* window);

    QWidget* m_window;
    /// The host and its chain of parent windows. They are stored because they may be destroyed
    /// together, when none of them can be asked for its parent.
    QVector<QWidget*> m_hosts;
};
