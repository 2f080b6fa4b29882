#pragma once

#include <QMenu>

/// The menu of the framework. It adds nothing to Qt's.
class VKD_QT_Menu : public QMenu
{
public:
    using QMenu::QMenu;
};
