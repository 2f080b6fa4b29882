#pragma once

#include <QObject>
#include <QVector>
#include <QWidget>

/// Makes a window without a parent the child window of another one, its host, for the window
/// system alone: a modal dialog does not block its child windows, and the tie can move to another
/// host while the window is open, which a widget's parent cannot without a new native window.
///
/// A modal dialog that would block the window becomes its host. When that goes away, the window
/// that the dialog belongs to is the next host. With the last host the window closes.
class WindowTie : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the owner.
    explicit WindowTie(QWidget* window);

    /// Ties to the modal dialog that is active, else to the window of `widget`, which may be null.
    void tieTo(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHost(QWidget* host);
    void tieToHost();
    void followModal();
    void drop(QWidget* gone);
    void forget(QWidget* window);

    QWidget* m_window;
    /// The host and, in turn, the windows that it belongs to: they may die together, and then none
    /// of them can be asked for its parent.
    QVector<QWidget*> m_hosts;
};
