#include "cli/PlatformLog.h"

#include <cstring>

namespace workbench {

namespace {
QStringList& kept()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler previous = nullptr;

/// What Qt says about itself in a program without a screen.
bool isOfNoUse(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
}

void keep(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "vkd.", 4) == 0)
        kept() << message;
    else if (!isOfNoUse(message))
        previous(type, context, message);
}
} // namespace

void PlatformLog::install()
{
    previous = qInstallMessageHandler(keep);
}

QStringList PlatformLog::take()
{
    QStringList lines;
    lines.swap(kept());
    lines.removeDuplicates();
    return lines;
}

} // namespace workbench
