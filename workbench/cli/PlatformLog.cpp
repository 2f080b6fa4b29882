#include "cli/PlatformLog.h"

#include <cstring>

namespace workbench {

namespace {
QStringList& collected()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler previous = nullptr;

/// Whether the message is one that Qt writes in every program without a screen.
bool isOfNoUse(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
}

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "vkd.", 4) == 0)
        collected() << message;
    else if (!isOfNoUse(message))
        previous(type, context, message);
}
} // namespace

void PlatformLog::install()
{
    previous = qInstallMessageHandler(collect);
}

QStringList PlatformLog::take()
{
    QStringList lines;
    lines.swap(collected());
    lines.removeDuplicates();
    return lines;
}

} // namespace workbench
