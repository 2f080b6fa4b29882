#include "window/files/FileDrop.h"

#include "window/files/projectFiles.h"

#include <QDropEvent>
#include <QTimer>
#include <QWidget>

namespace workbench {

FileDrop::FileDrop(QWidget* window, const std::function<bool()>& isAllowed)
    : QObject(window)
    , m_isAllowed(isAllowed)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto drop = static_cast<QDropEvent*>(event);
    const QString path = draggedFile(drop->mimeData());
    drop->setDropAction(Qt::CopyAction);
    const bool isCopy = drop->dropAction() != Qt::MoveAction; // a source may offer only a move
    drop->setAccepted(event->type() == QEvent::Drop ||
                      (m_isAllowed() && isCopy && !path.isEmpty()));
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, path] {
            if (m_isAllowed())
                Q_EMIT dropped(path);
        });
    return true;
}

} // namespace workbench
