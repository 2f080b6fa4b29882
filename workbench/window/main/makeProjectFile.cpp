#include "window/main/makeProjectFile.h"

#include <vkd_language.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

namespace workbench {

namespace {
constexpr int Patience = 50; // interval between progress checks, in ms

QString language()
{
    return vkd::desktopLanguage() == vkd::Language::German ? QStringLiteral("german")
                                                           : QStringLiteral("english");
}

/// Returns the error message of a command without the program name, or an empty string on success.
QString failure(QProcess& process)
{
    if (process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit)
        return process.errorString();
    if (process.exitCode() == 0)
        return QString();
    return QString::fromUtf8(process.readAllStandardError())
        .section(QLatin1String(": "), 1)
        .trimmed();
}

/// Kills the process and returns false if `goOn` returns false.
bool waitFor(QProcess& process, const VkdGoOn& goOn)
{
    int percent = 0;
    while (process.state() != QProcess::NotRunning) {
        process.waitForFinished(Patience);
        while (process.canReadLine())
            if (const QByteArray line = process.readLine().trimmed(); !line.contains(' '))
                percent = line.toInt();
        if (goOn && !goOn(percent)) {
            process.kill();
            process.waitForFinished();
            return false;
        }
    }
    return true;
}
} // namespace

QString makeProjectFile(const QString& path, const QString& model, const VkdGoOn& goOn)
{
    QProcess process;
    const QDir programs(QCoreApplication::applicationDirPath());
    process.start(programs.filePath(QStringLiteral("plib_workbench")),
                  {QStringLiteral("new"), path, QStringLiteral("--model"), model,
                   QStringLiteral("--progress"), QStringLiteral("--language"), language()});
    return waitFor(process, goOn) ? failure(process) : QStringLiteral("cancelled");
}

} // namespace workbench
