#pragma once

#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_T_Help.h>

#include <QListWidget>
#include <QTextBrowser>

namespace testsupport {

/// Returns the open help windows; there should never be two.
inline QWidgetList helpWindows()
{
    QWidgetList found;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* window : all)
        if (window->objectName() == QLatin1String("VKD_T_Help") && window->isVisible())
            found << window;
    return found;
}

template <class Widget>
Widget* inHelp(const char* name)
{
    return helpWindows().at(0)->findChild<Widget*>(QLatin1String(name));
}

inline QTextBrowser* helpPage()
{
    return inHelp<QTextBrowser>("page");
}

inline void closeHelp()
{
    const QWidgetList open = helpWindows();
    for (QWidget* window : open)
        window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace testsupport
