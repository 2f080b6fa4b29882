#include "window/main/commandLineServices.h"

#include <vkd_lib_value.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>

namespace workbench {

namespace {
constexpr int Patience = 50; // ms between two looks at the progress

void start(QProcess& process, const QStringList& arguments, int language)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString name = language == 0 ? QStringLiteral("german") : QStringLiteral("english");
    process.start(programs.filePath(QStringLiteral("plib_workbench")),
                  arguments + QStringList{QStringLiteral("--language"), name});
}

/// The error line of a command without the name of the program; empty after a success.
QString failure(QProcess& process)
{
    if (process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit)
        return process.errorString();
    if (process.exitCode() == 0)
        return QString();
    return QString::fromUtf8(process.readAllStandardError()).section(QLatin1String(": "), 1);
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

/// A killed process leaves files behind, so it works in a folder that is removed with its contents.
QString makeProject(const QString& path, const QString& model, const VkdGoOn& goOn)
{
    const QTemporaryDir folder(QFileInfo(path).absolutePath() + QLatin1String("/plib-XXXXXX"));
    if (!folder.isValid())
        return folder.errorString();
    const QString made = folder.filePath(QStringLiteral("made.zob"));
    QProcess process;
    start(process,
          {QStringLiteral("new"), made, QStringLiteral("--model"), model,
           QStringLiteral("--progress")},
          vkd_lib_getvalue(VKD_SETTING_LANGUAGE));
    if (!waitFor(process, goOn))
        return QStringLiteral("cancelled");
    QString reason = failure(process);
    if (!reason.isEmpty())
        return reason.replace(made, path);
    QFile file(made);
    return file.rename(path) ? QString() : file.errorString();
}

QVector<PlotTitles> readPlotTitles(int language)
{
    QProcess process;
    start(process, {QStringLiteral("catalogue")}, language);
    process.waitForFinished(-1);
    QVector<PlotTitles> titles;
    while (process.canReadLine()) {
        const QStringList columns = QString::fromUtf8(process.readLine()).split(QLatin1Char('\t'));
        if (columns.size() > 5)
            titles.append({columns[3], columns[4], columns[5]});
    }
    return titles;
}

/// The pages, too, read the catalogue once.
QVector<PlotTitles> plotTitles(int language)
{
    static QHash<int, QVector<PlotTitles>> known;
    QVector<PlotTitles>& titles = known[language];
    if (titles.isEmpty())
        titles = readPlotTitles(language);
    return titles;
}
} // namespace

WindowServices commandLineServices()
{
    return {makeProject, plotTitles};
}

} // namespace workbench
