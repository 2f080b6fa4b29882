#pragma once

#include "TestSupport.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

#include <functional>

namespace testsupport {

/// Calls `act` with the modal dialog or box that opens next. Call it before the step that opens
/// one; nothing happens if that opens none within five seconds.
inline void whenModal(const std::function<void(QWidget*)>& act, int triesLeft = 500)
{
    const QPointer<QWidget> before = QApplication::activeModalWidget();
    QTimer::singleShot(10, qApp, [=] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal && modal != before && modal->isVisible())
            act(modal);
        else if (triesLeft > 0)
            whenModal(act, triesLeft - 1);
    });
}

} // namespace testsupport

/// As PLIB_TEST_MAIN, for tests of widgets. Widgets that a test leaves behind are failures.
#define PLIB_WIDGET_TEST_MAIN(TestClass)                                                       \
    int main(int argc, char* argv[])                                                           \
    {                                                                                          \
        QApplication application(argc, argv);                                                  \
        TestClass test;                                                                        \
        const int failed = testsupport::run(&test, argc, argv);                                \
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);                   \
        const QWidgetList left = QApplication::topLevelWidgets();                              \
        for (const QWidget* widget : left)                                                     \
            std::fprintf(stderr, "FAIL!  : left behind: %s %s\n",                              \
                         widget->metaObject()->className(), qPrintable(widget->objectName())); \
        return failed + left.size();                                                           \
    }
