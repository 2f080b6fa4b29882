#include "VKD_QT_Dialog.h"

#include "dialogs/KeepOnScreen.h"
#include "VKD_QT_InputField.h"

#include <QPointer>
#include <QShowEvent>

#include <utility>

/// Because of the explicit hint, Qt does not add its button for context help.
VKD_QT_Dialog::VKD_QT_Dialog(QWidget* parent, const char* name, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::WindowCloseButtonHint)
{
    setObjectName(QLatin1String(name));
    new KeepOnScreen(this);
}

void VKD_QT_Dialog::callDone(int result)
{
    const QPointer<VKD_QT_Dialog> self = this;
    m_isLeaving = true;
    m_detour = result;
    done(result);
    if (self)
        m_isLeaving = false; // a subclass may have kept the dialog open
}

void VKD_QT_Dialog::done(int result)
{
    if (result == Accepted && !m_isLeaving && isVisible() && vkd_qt_leadToRefusedField(this))
        return;
    m_isAway = std::exchange(m_isLeaving, false);
    QDialog::done(result);
}

/// Shows focus frames immediately if the parent window shows them, to help keyboard users.
void VKD_QT_Dialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (parentWidget() && parentWidget()->window()->testAttribute(Qt::WA_KeyboardFocusChange))
        setAttribute(Qt::WA_KeyboardFocusChange);
    if (!m_isAway || event->spontaneous())
        return;
    m_isAway = false;
    Q_EMIT isReOpen(m_detour);
}
