#include "TransientParent.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>

namespace {
QWidget* windowOf(QWidget* widget)
{
    return widget ? widget->window() : nullptr;
}

QWindow* nativeWindow(QWidget* window)
{
    if (!window)
        return nullptr;
    window->winId(); // creates the native window if necessary
    return window->windowHandle();
}
} // namespace

TransientParent::TransientParent(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    m_window->installEventFilter(this);
}

void TransientParent::follow(QWidget* widget)
{
    if (QWidget* modal = QApplication::activeModalWidget())
        setHost(modal->window());
    else if (windowOf(widget) != m_window)
        setHost(windowOf(widget));
}

bool TransientParent::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::WindowBlocked)
        QTimer::singleShot(0, this,
                           &TransientParent::followModal); // the dialog is not fully shown yet
    if (event->type() == QEvent::Hide && m_hosts.size() > 1 && watched == m_hosts.first())
        drop(m_hosts.first());
    return QObject::eventFilter(watched, event);
}

void TransientParent::setHost(QWidget* host)
{
    for (QWidget* before : qAsConst(m_hosts))
        forget(before);
    m_hosts.clear();
    for (QWidget* next = host; next; next = windowOf(next->parentWidget())) {
        m_hosts.append(next);
        connect(next, &QObject::destroyed, this, [this, next] { drop(next); });
    }
    applyHost();
}

void TransientParent::applyHost()
{
    QWidget* host = m_hosts.value(0);
    if (host)
        host->installEventFilter(this);
    nativeWindow(m_window)->setTransientParent(nativeWindow(host));
}

void TransientParent::followModal()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        setHost(modal->window());
}

void TransientParent::drop(QWidget* gone)
{
    forget(gone);
    m_hosts.removeOne(gone);
    if (m_hosts.isEmpty())
        m_window->close();
    else
        applyHost();
}

void TransientParent::forget(QWidget* window)
{
    window->removeEventFilter(this);
    disconnect(window, nullptr, this, nullptr);
}
