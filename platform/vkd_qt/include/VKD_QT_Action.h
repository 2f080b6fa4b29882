#pragma once

#include <QAction>

/// A QAction whose constructor sets the object name, as the framework requires.
class VKD_QT_Action : public QAction
{
public:
    VKD_QT_Action(const QIcon& icon, const QString& text, const QKeySequence& shortcut,
                  QObject* parent, const char* name)
        : QAction(icon, text, parent)
    {
        setShortcut(shortcut);
        setObjectName(QLatin1String(name));
    }
};
