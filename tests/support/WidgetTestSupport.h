#pragma once

#include "TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <functional>

namespace testsupport {

/// Calls `act` with the next modal widget that `accepts` returns true for. Must be called before
/// the step that opens the widget. Does nothing if no such widget opens in time.
inline void whenModal(const std::function<bool(QWidget*)>& accepts,
                      const std::function<void(QWidget*)>& act)
{
    const QPointer<QWidget> before = QApplication::activeModalWidget();
    auto timer = new QTimer(qApp);
    const QDeadlineTimer deadline(Patience);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget* modal = QApplication::activeModalWidget();
        const bool isThere = modal && modal != before && modal->isVisible() && accepts(modal);
        if (!isThere && !deadline.hasExpired())
            return;
        timer->stop();
        timer->deleteLater();
        if (isThere)
            act(modal);
    });
    timer->start(10);
}

/// Calls `act` with the next modal dialog or message box. Ignores progress dialogs, which open only
/// on slow computers.
inline void whenModal(const std::function<void(QWidget*)>& act)
{
    whenModal([](QWidget* modal) { return !qobject_cast<QProgressDialog*>(modal); }, act);
}

/// Calls `act` with the next progress dialog.
inline void whenProgress(const std::function<void(QProgressDialog*)>& act)
{
    whenModal([](QWidget* modal) { return qobject_cast<QProgressDialog*>(modal) != nullptr; },
              [act](QWidget* modal) { act(qobject_cast<QProgressDialog*>(modal)); });
}

template <class Widget>
Widget* find(const QWidget& window, const char* name)
{
    auto found = window.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

/// Enters a path in a file dialog and accepts it.
inline void enterFile(QWidget* dialog, const QString& path)
{
    auto name = find<QLineEdit>(*dialog, "fileNameEdit");
    QApplication::setActiveWindow(dialog);
    name->setFocus(); // otherwise the dialog uses the file selected in its list
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
}

inline void trigger(const QWidget& window, const char* action)
{
    window.findChild<QAction*>(QLatin1String(action))->trigger();
}

} // namespace testsupport

/// Like PLIB_TEST_MAIN, for tests of widgets. Widgets that still exist after the test count as
/// failures.
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
