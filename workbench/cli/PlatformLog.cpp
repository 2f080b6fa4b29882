#include "cli/PlatformLog.h"

#include "cli/CommandLine.h"

#include <QStringList>

#include <cstring>

namespace workbench {

namespace {
QStringList& collected()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler previous = nullptr;

/// Returns whether this is a message that Qt logs in every program that runs without a screen.
bool isOfNoUse(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
}

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "vkd.", 4) == 0) {
        if (!collected().contains(message))
            collected() << message;
    } else if (!isOfNoUse(message))
        previous(type, context, message);
}
} // namespace

void PlatformLog::install()
{
    previous = qInstallMessageHandler(collect);
}

void PlatformLog::print()
{
    for (const QString& line : qAsConst(collected()))
        warn(line);
    collected().clear();
}

} // namespace workbench
