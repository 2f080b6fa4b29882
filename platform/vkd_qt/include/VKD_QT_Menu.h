#pragma once

#include <QMenu>

/// Qt's menu with an object name as the framework's constructors take it.
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
