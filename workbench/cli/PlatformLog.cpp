#include "PlatformLog.h"

#include <cstring>

namespace workbench {

namespace {
QStringList& kept()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler previous = nullptr;

/// What Qt's plug-in for programs without a screen says about itself is left out.
void keep(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (context.category && std::strncmp(context.category, "vkd.", 4) == 0)
        kept() << message;
    else if (!message.startsWith(QLatin1String("This plugin does not support ")))
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
