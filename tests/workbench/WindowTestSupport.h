#pragma once

#include "WidgetTestSupport.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QWidget>

/// What tests of the workbench's window have in common.
namespace windowtest {

inline QByteArray commandLine(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(WORKBENCH), arguments);
    process.waitForFinished();
    return process.readAllStandardOutput();
}

inline QString makeProject(const QString& path, const QString& model)
{
    commandLine({QStringLiteral("new"), path, QStringLiteral("--model"), model});
    return QFile::exists(path) ? QString() : QStringLiteral("not made");
}

/// Names a file in the file dialog that opens next.
inline void answerFileDialog(const QString& path)
{
    testsupport::whenModal([path](QWidget* dialog) {
        auto name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

template <class Widget>
Widget* find(const QWidget& window, const char* name)
{
    auto found = window.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no %s", name);
    return found;
}

inline void trigger(const QWidget& window, const char* action)
{
    window.findChild<QAction*>(QLatin1String(action))->trigger();
}

inline QString script(const QWidget& window)
{
    return find<QPlainTextEdit>(window, "ScriptText")->toPlainText();
}

} // namespace windowtest
