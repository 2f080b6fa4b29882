#include "fields/DeleteKey.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace plib {

DeleteKey::DeleteKey(QObject* parent, std::function<void()> act)
    : QObject(parent)
    , m_act(std::move(act))
{
}

void DeleteKey::listenTo(QWidget* widget)
{
    widget->installEventFilter(this);
}

bool DeleteKey::eventFilter(QObject* watched, QEvent* event)
{
    const bool isAsked = event->type() == QEvent::ShortcutOverride; // accepted to prevent it
    const bool isKey = isAsked || event->type() == QEvent::KeyPress;
    const auto key = isKey ? static_cast<QKeyEvent*>(event) : nullptr;
    if (!key || key->key() != Qt::Key_Delete ||
        (key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    event->accept();
    if (!isAsked)
        m_act();
    return true;
}

} // namespace plib
