#pragma once

#include <QMenu>

/// A QMenu whose constructor sets the object name, as the framework requires.
class VKD_QT_Menu : public QMenu
{
public:
    using QMenu::QMenu;
    VKD_QT_Menu(QWidget* parent, const char* name)
        : QMenu(parent)
    {
        setObjectName(QLatin1String(name));
    }
};
